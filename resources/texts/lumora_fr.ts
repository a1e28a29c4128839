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
    <message id="action.open">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Lire ce temps</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favoris et historique</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>Les favoris et l’historique ne sont pas accessibles pour le moment. Réessayez plus tard.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Ce fichier n’a pas été enregistré par Lumora ou il est endommagé.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Ce fichier provient d’une version plus récente de Lumora. Mettez Lumora à jour pour le restaurer.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Le fichier est illisible.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Impossible d’écrire le fichier. Choisissez un autre emplacement.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Restaurer…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Nouveaux favoris : %d
Nouveaux verbes dans l’historique : %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Restauration terminée</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Rien n’a été restauré</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Introuvables : %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Enregistrer favoris et historique…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favoris : %d
Verbes dans l’historique : %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Enregistrement terminé</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Rien n’a été enregistré</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Sauvegarde et restauration</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Afficher ou masquer la liste</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Partager</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favori</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Nous contacter</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>L’e-mail n’a pas pu être envoyé</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Vérifiez qu’un programme de messagerie est configuré sur cet appareil, puis réessayez.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Vous n’avez pas encore de favoris. Marquez un verbe d’une étoile pour le retrouver ici.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>« %1 » existe déjà. Le remplacer ?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Aucun fichier de ce type ici.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Remplacer</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>forme irrégulière</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>le radical change</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>composé</translation>
    </message>
    <message id="hint.compound_french">
        <source></source>
        <translation>composé</translation>
    </message>
    <message id="hint.feminine">
        <source></source>
        <translation>fém.</translation>
    </message>
    <message id="hint.feminine.plural">
        <source></source>
        <translation>fém. pl.</translation>
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
        <translation>passé</translation>
    </message>
    <message id="hint.past_french">
        <source></source>
        <translation>passé</translation>
    </message>
    <message id="hint.present">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="hint.present_french">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Vous n’avez encore consulté aucun verbe. Les verbes que vous ouvrez apparaîtront ici.</translation>
    </message>
    <message id="keys.ctrl">
        <source></source>
        <translation>Ctrl</translation>
    </message>
    <message id="keys.enter">
        <source></source>
        <translation>Entrée</translation>
    </message>
    <message id="keys.escape">
        <source></source>
        <translation>Échap</translation>
    </message>
    <message id="keys.find">
        <source></source>
        <translation>Rechercher ; Entrée ouvre le premier résultat</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Ouvrir un verbe, écouter une forme</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Partie suivante de la fenêtre</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Quitter</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>Ce que permet une ligne</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Maj</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Touches</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Autre mode, autre valeur</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora connaît un autre verbe de ce nom :</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>Le lien ne mène à aucun verbe.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>Le lien désigne un verbe que Lumora ne connaît pas.</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Autres applications</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Copié</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Réglages</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Confidentialité</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>par son sens</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>dans votre texte</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>se prononce pareil</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>orthographe proche</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Effacer la recherche</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Aucun verbe trouvé tel quel. Vouliez-vous dire…</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Aucun verbe trouvé.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Chercher aussi dans les formes conjuguées</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verbe, sens ou forme</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Choisissez un verbe pour afficher sa conjugaison.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Réglages</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Collecte de données</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Compte les fonctions utilisées. Ces données restent sur cet appareil et ne sont transmises à personne.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Conjugaisons</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>La recherche dans les formes conjuguées trouve aussi « être » à partir de « suis » ou de « étaient ».</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Noms des temps</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>Français</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Traduits</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Effacer l’historique</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Effacer l’historique</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>L’historique contient les %d derniers verbes consultés.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Supprimer tous les verbes de l’historique ?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Chercher dans les formes conjuguées</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Chercher dans les traductions : %@</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Recherche</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Début du mot</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>N’importe où</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Trier par</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Français</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Traduction</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Traductions</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automatique</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Néerlandais</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Anglais</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Français</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Allemand</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italien</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portugais</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Espagnol</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turc</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copier le texte</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Envoyer par e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>« %1 » n’a pas pu être envoyé.</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Aucun programme de messagerie n’est configuré sur cet appareil.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Imprimer</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>« %1 » n’a pas pu être imprimé.</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Aucune imprimante n’est installée sur cet appareil.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Choisissez une imprimante</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Enregistrer sous</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>« %1 » n’a pas pu être enregistré.</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Aucun dossier ici</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Enregistrer comme page web</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Nom du fichier</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Enregistrer au format texte</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Dossier parent</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Merci de votre message. Nous vous répondrons dès que possible.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Message envoyé</translation>
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
    <message id="tense.unused">
        <source></source>
        <translation>inusité</translation>
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
    <message id="verb.marks">
        <source></source>
        <translation>Distinguer radicaux et terminaisons</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Plus</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>la forme recherchée</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Voix d’homme</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Voix de femme</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Le volume est très bas. Augmentez-le pour entendre la prononciation.</translation>
    </message>
</context>
</TS>
