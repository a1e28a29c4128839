<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favori</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Retirer</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Afficher ou masquer la liste</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favori</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Vous n’avez pas encore de favoris. Marquez un verbe d’une étoile pour le retrouver ici.</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Vous n’avez encore consulté aucun verbe. Les verbes que vous ouvrez apparaîtront ici.</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Aucun verbe trouvé.</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Rechercher un verbe</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Choisissez un verbe pour afficher sa conjugaison.</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favoris</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verbes</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Conditionnel</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.con.secondpast_french">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.ind">
        <source></source>
        <translation>Indicatif</translation>
    </message>
    <message id="tense.ind.future">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Autres formes</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Subjonctif</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Conditionnel</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicatif</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Autres</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Subjonctif</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verbes</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Verbes français</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Le volume est très bas. Augmentez-le pour entendre la prononciation.</translation>
    </message>
</context>
</TS>
