<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Preferito</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Rimuovi</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Ascolta</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostra o nascondi l’elenco</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Preferito</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Non hai ancora preferiti. Segna un verbo con la stella per ritrovarlo qui.</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Non hai ancora consultato nessun verbo. I verbi che apri compariranno qui.</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>Il collegamento non porta a nessun verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>Il collegamento indica un verbo che Lumora non ha.</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Cancella la ricerca</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Nessun verbo trovato.</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Cerca un verbo</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Scegli un verbo per vederne la coniugazione.</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Preferiti</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Cronologia</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verbi</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Condizionale</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Condizionale passato</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condizionale presente</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condizionale passato, 2ª forma</translation>
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
        <translation>Futuro semplice</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imperfetto</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro anteriore</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Trapassato remoto</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Trapassato prossimo</translation>
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
        <translation>Passato prossimo</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Passato remoto</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Altre forme</translation>
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
        <translation>Participio</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Congiuntivo</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Congiuntivo imperfetto</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Congiuntivo passato</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Congiuntivo trapassato</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Congiuntivo presente</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Condizionale</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicativo</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Altro</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Congiuntivo</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verbi</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Verbi francesi</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Il volume è molto basso. Alzalo per sentire la pronuncia.</translation>
    </message>
</context>
</TS>
