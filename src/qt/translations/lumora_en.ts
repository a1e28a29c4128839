<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favourite</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Remove</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Remove</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Show or hide the list</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favourite</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>You have no favourites yet. Mark a verb with the star to find it here.</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>You have not looked at any verbs yet. The verbs you open will be listed here.</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Clear the search</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>No verb found.</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Search for a verb</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Select a verb to see its conjugation.</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favourites</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verbs</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Conditional</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Past conditional</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Present conditional</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Past conditional, second form</translation>
    </message>
    <message id="tense.con.secondpast_french">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.ind">
        <source></source>
        <translation>Indicative</translation>
    </message>
    <message id="tense.ind.future">
        <source></source>
        <translation>Future</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imperfect</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Future perfect</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Past anterior</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pluperfect</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Present</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Present perfect</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Past historic</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Other forms</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Imperative</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Participle</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Subjunctive</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Imperfect subjunctive</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Past subjunctive</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Pluperfect subjunctive</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Present subjunctive</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Conditional</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicative</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Other</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Subjunctive</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verbs</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>French verbs</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>The volume is very low. Turn it up to hear the pronunciation.</translation>
    </message>
</context>
</TS>
