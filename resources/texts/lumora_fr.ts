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
    <message id="card.about">
        <source></source>
        <translation>À propos de ce verbe</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>De même conjugaison</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Auxiliaire</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Groupe</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1er groupe : verbes réguliers en -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2e groupe : verbes en -ir comme finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3e groupe : verbes irréguliers</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1er groupe</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2e groupe</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3e groupe</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Homonyme</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinitif</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Infinitif passé</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>employé à l’infinitif seulement</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Se conjugue comme</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>comme %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Verbe suivant</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>À noter</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>le participe ne s’accorde qu’avec un complément d’objet direct placé avant</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>le participe s’accorde avec le sujet après être seulement</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>le participe s’accorde avec le sujet</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>le participe ne s’accorde pas avec le sujet</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>le participe est invariable</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Sans se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Verbe précédent</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Avec se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>employé à la troisième personne seulement</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspiré : ni élision ni liaison</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>défectif : certaines formes ne s’emploient pas</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>avec en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>impersonnel : seulement avec il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>aussi avec ils au sens figuré</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>pronominal : avec se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Inusité à</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Fréquence</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>l’un des 100 verbes les plus courants</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>l’un des 500 verbes les plus courants</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>l’un des 2 000 verbes les plus courants</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>d’usage vivant</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>rare, vieilli ou technique</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Usité seulement à</translation>
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
    <message id="drawer.here">
        <source></source>
        <translation>Vous êtes ici</translation>
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
        <translation>Ouvrir un verbe, regarder une forme</translation>
    </message>
    <message id="keys.page_down">
        <source></source>
        <translation>PgSuiv</translation>
    </message>
    <message id="keys.page_up">
        <source></source>
        <translation>PgPréc</translation>
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
    <message id="keys.space">
        <source></source>
        <translation>Espace</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Arrêter la lecture</translation>
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
    <message id="list.common">
        <source></source>
        <translation>Courants</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Irréguliers</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>N’afficher que</translation>
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
    <message id="person.1.plural">
        <source></source>
        <translation>1re personne du pluriel</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1re personne du singulier</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2e personne du pluriel</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2e personne du singulier</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3e personne du pluriel</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3e personne du singulier</translation>
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
    <message id="select.hint">
        <source></source>
        <translation>Ou saisissez une forme : « irions » mène à aller.</translation>
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
    <message id="sheet.copy.form">
        <source></source>
        <translation>Copier la forme</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Copier la ligne</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>La même forme ailleurs</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Prononcer lentement</translation>
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
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Exprime ce qui serait arrivé sous certaines conditions ; la proposition avec « si » est au plus-que-parfait. Il exprime aussi un regret ou un reproche : « tu aurais dû attendre ».</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Exprime ce qui arriverait sous certaines conditions ; la proposition avec « si » est à l’imparfait. Il sert aussi à demander poliment : « je voudrais un café ».</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>A le même sens que le conditionnel passé 1re forme, mais appartient à la langue littéraire. Ses formes sont celles du subjonctif plus-que-parfait, sans « que ».</translation>
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
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Exprime ce qui arrivera, une promesse ou une prévision. On l’emploie aussi après « quand » lorsqu’il s’agit de l’avenir.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Décrit comment étaient les choses, ce qui était en cours ou ce qui se répétait. Il peint le décor d’un récit, tandis que le passé composé raconte les faits.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Exprime ce qui sera achevé à un moment donné de l’avenir. Il peut aussi exprimer une supposition sur le passé : « il aura oublié ».</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect.example">
        <source></source>
        <translation>Dès qu’il eut mangé, il sortit.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Exprime ce qui s’est achevé juste avant un fait raconté au passé simple. C’est un temps littéraire, surtout après « quand », « dès que » et « après que ».</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Exprime ce qui s’était déjà passé avant un autre moment du passé. Après « si », il pose une condition qui ne s’est pas réalisée : « si tu avais su ».</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.present.example">
        <source></source>
        <translation>Je travaille à Lyon depuis deux ans.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Exprime ce qui se passe maintenant, ce qui est habituel ou ce qui est toujours vrai. Avec « depuis », il indique ce qui a commencé dans le passé et qui dure encore.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Raconte ce qui a eu lieu et qui est terminé, ou ce dont le résultat compte encore. C’est le passé de tous les jours, à l’oral comme dans la plupart des écrits.</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Raconte des faits achevés dans les romans, les contes et les livres d’histoire. On ne l’emploie presque jamais à l’oral, où le passé composé le remplace.</translation>
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
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Donne un ordre, un conseil ou une invitation ; les pronoms « tu », « nous » et « vous » s’omettent. La forme passée, rare, demande qu’une chose soit faite avant un moment donné.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>Le participe présent exprime une action qui en accompagne une autre ; avec « en », c’est le gérondif. Le participe passé forme les temps composés ; « ayant parlé » dit ce qui a précédé.</translation>
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
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Forme littéraire : après un verbe au passé, elle remplace le subjonctif présent. L’usage courant garde le subjonctif présent : « il fallait que je parte ».</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Remplace le subjonctif présent quand l’action est déjà accomplie. Il exprime aussi ce qui doit être accompli plus tard : « il faut que tu aies fini à midi ».</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Forme littéraire : après un verbe au passé, elle remplace le subjonctif passé. Elle exprime ce qui avait déjà eu lieu ; l’usage courant garde le subjonctif passé.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>S’emploie après l’expression d’une volonté, d’un sentiment, d’un doute ou d’une nécessité : « il faut que ». Il suit aussi certaines conjonctions, comme « pour que », « avant que » et « bien que ».</translation>
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
    <message id="web.again">
        <source></source>
        <translation>Réessayer</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora n’a pas pu démarrer dans ce navigateur. Réessayez, ou fermez d’abord les autres onglets de Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Les favoris, l’historique et les réglages sont conservés en copie dans ce navigateur. Enregistrez de temps en temps un fichier de sauvegarde.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Les favoris, l’historique et les réglages sont conservés dans ce navigateur, sur cet appareil. Ils disparaissent si vous effacez ses données : un fichier de sauvegarde les conserve.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Ce navigateur ne conserve rien : les favoris, l’historique et les réglages sont perdus à la fermeture de l’onglet. Enregistrez-les dans un fichier de sauvegarde.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Imprimer ou enregistrer en PDF</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Partager</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora est ouvert dans un autre onglet de ce navigateur.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>L’utiliser ici</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora continue maintenant dans un autre onglet.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Ce navigateur n’a pas de voix française.</translation>
    </message>
</context>
</TS>
