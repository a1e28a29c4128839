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
    <message id="action.open">
        <source></source>
        <translation>Abrir</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Ouvir</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Ler este tempo</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Parar</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favoritos e histórico</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>De momento não é possível aceder aos favoritos e ao histórico. Tente mais tarde.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Este ficheiro não foi guardado pelo Lumora ou está danificado.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Este ficheiro vem de uma versão mais recente do Lumora. Atualize o Lumora para o restaurar.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Não é possível ler o ficheiro.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Não é possível escrever o ficheiro. Escolha outro local.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Restaurar…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Novos favoritos: %d
Novos no histórico: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Restauro concluído</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Nada foi restaurado</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Não encontrados: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Guardar favoritos e histórico…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favoritos: %d
Verbos no histórico: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Guardado</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Nada foi guardado</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Guardar e restaurar</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostrar ou ocultar a lista</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Partilhar</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Concluído</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contacte-nos</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>Não foi possível enviar o e-mail</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Verifique se há um programa de correio configurado neste dispositivo e tente novamente.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Ainda não tem favoritos. Marque um verbo com a estrela para o encontrar aqui.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>«%1» já existe. Substituir?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Aqui não há nenhum ficheiro deste tipo.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Substituir</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>forma irregular</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>o radical muda</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>composto</translation>
    </message>
    <message id="hint.compound_french">
        <source></source>
        <translation>composé</translation>
    </message>
    <message id="hint.feminine">
        <source></source>
        <translation>fem.</translation>
    </message>
    <message id="hint.feminine.plural">
        <source></source>
        <translation>fem. pl.</translation>
    </message>
    <message id="hint.feminine.plural_french">
        <source></source>
        <translation>fém. pl.</translation>
    </message>
    <message id="hint.feminine_french">
        <source></source>
        <translation>fém.</translation>
    </message>
    <message id="hint.masculine">
        <source></source>
        <translation>masc.</translation>
    </message>
    <message id="hint.masculine.plural">
        <source></source>
        <translation>masc. pl.</translation>
    </message>
    <message id="hint.masculine.plural_french">
        <source></source>
        <translation>masc. pl.</translation>
    </message>
    <message id="hint.masculine_french">
        <source></source>
        <translation>masc.</translation>
    </message>
    <message id="hint.past">
        <source></source>
        <translation>passado</translation>
    </message>
    <message id="hint.past_french">
        <source></source>
        <translation>passé</translation>
    </message>
    <message id="hint.present">
        <source></source>
        <translation>presente</translation>
    </message>
    <message id="hint.present_french">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Ainda não consultou nenhum verbo. Os verbos que abrir aparecem aqui.</translation>
    </message>
    <message id="keys.ctrl">
        <source></source>
        <translation>Ctrl</translation>
    </message>
    <message id="keys.enter">
        <source></source>
        <translation>Enter</translation>
    </message>
    <message id="keys.escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="keys.find">
        <source></source>
        <translation>Pesquisar; Enter abre o primeiro resultado</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Abrir um verbo, ouvir uma forma</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Parte seguinte da janela</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Sair</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>O que uma linha oferece</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Shift</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Teclas</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Outro modo, outro valor</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>O Lumora tem outro verbo com este nome:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>A ligação não conduz a nenhum verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>A ligação indica um verbo que o Lumora não tem.</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Mais aplicações</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Voltar</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Copiado</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Guardado como %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Definições</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Privacidade</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>pelo significado</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>no seu texto</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>soa igual</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>grafia parecida</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Limpar a pesquisa</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Nenhum verbo encontrado tal como escrito. Será que quis dizer…</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Nenhum verbo encontrado.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Procurar também nas formas conjugadas</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verbo, significado ou forma</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Escolha um verbo para ver a sua conjugação.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Definições</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Recolha de dados</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Conta que partes do programa são utilizadas. Os dados ficam neste dispositivo e não são enviados a ninguém.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Velocidade da voz</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Conjugações</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>A pesquisa nas formas conjugadas encontra «être» também por «suis» ou «étaient».</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Nomes dos tempos</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>Em francês</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Traduzidos</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Histórico</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Limpar o histórico</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Limpar o histórico</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>O histórico contém os últimos %d verbos que abriu.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Remover todos os verbos do histórico?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Pesquisar formas conjugadas</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Pesquisar traduções: %@</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Pesquisa</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Início</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Qualquer parte</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Ordenar por</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Francês</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Tradução</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Traduções</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automático</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Neerlandês</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Inglês</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Francês</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Alemão</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Português</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Espanhol</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turco</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Versão %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copiar texto</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Enviar por e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>Não foi possível enviar «%1».</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Não há nenhum programa de correio configurado neste dispositivo.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Imprimir</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>Não foi possível imprimir «%1».</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>À procura de impressoras…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Não há nenhuma impressora neste dispositivo.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Escolha uma impressora</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Guardar como</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>Não foi possível guardar «%1».</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Não há pastas aqui</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Guardar como página Web</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Guardar como PDF</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Guardar como texto</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Pasta superior</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Obrigado pela sua mensagem. Responderemos assim que possível.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Mensagem enviada</translation>
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
    <message id="tense.unused">
        <source></source>
        <translation>não se usa</translation>
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
    <message id="verb.marks">
        <source></source>
        <translation>Destacar radicais e terminações</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Mais</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>a forma procurada</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Voz masculina</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Voz feminina</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>O volume está muito baixo. Aumente-o para ouvir a pronúncia.</translation>
    </message>
</context>
</TS>
