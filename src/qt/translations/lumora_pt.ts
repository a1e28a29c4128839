<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Remover</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Ouvir</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostrar ou ocultar a lista</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Ainda não tem favoritos. Marque um verbo com a estrela para o encontrar aqui.</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Ainda não consultou nenhum verbo. Os verbos que abrir aparecem aqui.</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>A ligação não conduz a nenhum verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>A ligação indica um verbo que o Lumora não tem.</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Limpar a pesquisa</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Nenhum verbo encontrado.</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Pesquisar um verbo</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Escolha um verbo para ver a sua conjugação.</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favoritos</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Histórico</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verbos</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Condicional</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Condicional composto</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condicional simples</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condicional composto, 2.ª forma</translation>
    </message>
    <message id="tense.con.secondpast_french">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.ind">
        <source></source>
        <translation>Indicativo</translation>
    </message>
    <message id="tense.ind.future">
        <source></source>
        <translation>Futuro simples</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Pretérito imperfeito</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro composto</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Pretérito anterior</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pretérito mais-que-perfeito</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Presente</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Pretérito perfeito composto</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Pretérito perfeito simples</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Outras formas</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Imperativo</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Particípio</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Conjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Imperfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Perfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Mais-que-perfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Presente do conjuntivo</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Condicional</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicativo</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Outros</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Conjuntivo</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verbos</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Verbos franceses</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>O volume está muito baixo. Aumente-o para ouvir a pronúncia.</translation>
    </message>
</context>
</TS>
