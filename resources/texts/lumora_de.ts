<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favorit</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Entfernen</translation>
    </message>
    <message id="action.open">
        <source></source>
        <translation>Öffnen</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Anhören</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Diese Zeitform vorlesen</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Stopp</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favoriten und Verlauf</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>Favoriten und Verlauf sind zurzeit nicht erreichbar. Versuchen Sie es später erneut.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Diese Datei stammt nicht von Lumora oder ist beschädigt.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Diese Datei stammt aus einer neueren Version von Lumora. Aktualisieren Sie Lumora, um sie wiederherzustellen.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Die Datei kann nicht geschrieben werden. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Wiederherstellen …</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Neue Favoriten: %d
Neu im Verlauf: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Wiederhergestellt</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Nichts wurde wiederhergestellt</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Nicht gefunden: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Favoriten und Verlauf sichern …</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favoriten: %d
Verben im Verlauf: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Gesichert</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Nichts wurde gesichert</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Sichern und wiederherstellen</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Liste ein- oder ausblenden</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Teilen</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favorit</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menü</translation>
    </message>
    <message id="card.about">
        <source></source>
        <translation>Über dieses Verb</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>Ebenso konjugiert</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Hilfsverb</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Gruppe</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1. Gruppe: regelmäßige Verben auf -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2. Gruppe: Verben auf -ir wie finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3. Gruppe: unregelmäßige Verben</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1. Gruppe</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2. Gruppe</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3. Gruppe</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Gleichlautend</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinitiv</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Infinitiv Perfekt</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>nur im Infinitiv gebraucht</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Konjugiert wie</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>wie %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Nächstes Verb</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Hinweis</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>das Partizip richtet sich nur nach einem vorangehenden direkten Objekt</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>das Partizip richtet sich nur nach être nach dem Subjekt</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>das Partizip richtet sich nach dem Subjekt</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>das Partizip richtet sich nicht nach dem Subjekt</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>das Partizip ist unveränderlich</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Ohne se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Voriges Verb</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Mit se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>nur in der dritten Person gebraucht</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspiré: davor weder Elision noch Bindung</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>unvollständig: einige Formen sind ungebräuchlich</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>mit en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>unpersönlich: nur mit il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>übertragen auch mit ils</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>reflexiv: mit se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Nicht gebraucht im</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Häufigkeit</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>eines der 100 häufigsten Verben</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>eines der 500 häufigsten Verben</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>eines der 2000 häufigsten Verben</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>lebendiger Gebrauch</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>selten, veraltet oder fachsprachlich</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Gebraucht nur im</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Fertig</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Kontakt</translation>
    </message>
    <message id="drawer.here">
        <source></source>
        <translation>Sie sind hier</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>E-Mail konnte nicht gesendet werden</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Prüfen Sie, ob auf diesem Gerät ein E-Mail-Programm eingerichtet ist, und versuchen Sie es erneut.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Sie haben noch keine Favoriten. Markieren Sie ein Verb mit dem Stern, um es hier wiederzufinden.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>„%1“ ist bereits vorhanden. Ersetzen?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Hier gibt es keine solche Datei.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Ersetzen</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>unregelmäßige Form</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>der Stamm ändert sich</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>zusammengesetzt</translation>
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
        <translation>fem. Pl.</translation>
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
        <translation>mask.</translation>
    </message>
    <message id="hint.masculine.plural">
        <source></source>
        <translation>mask. Pl.</translation>
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
        <translation>Perfekt</translation>
    </message>
    <message id="hint.past_french">
        <source></source>
        <translation>passé</translation>
    </message>
    <message id="hint.present">
        <source></source>
        <translation>Präsens</translation>
    </message>
    <message id="hint.present_french">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Sie haben noch keine Verben angesehen. Die Verben, die Sie öffnen, erscheinen hier.</translation>
    </message>
    <message id="keys.ctrl">
        <source></source>
        <translation>Strg</translation>
    </message>
    <message id="keys.enter">
        <source></source>
        <translation>Eingabe</translation>
    </message>
    <message id="keys.escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="keys.find">
        <source></source>
        <translation>Suchen; Eingabe öffnet den ersten Treffer</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Ein Verb öffnen, eine Form ansehen</translation>
    </message>
    <message id="keys.page_down">
        <source></source>
        <translation>Bild ↓</translation>
    </message>
    <message id="keys.page_up">
        <source></source>
        <translation>Bild ↑</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Nächster Teil des Fensters</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Beenden</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>Was eine Zeile anbietet</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Umschalt</translation>
    </message>
    <message id="keys.space">
        <source></source>
        <translation>Leertaste</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Vorlesen beenden</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Tasten</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Anderer Modus, anderer Wert</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora kennt noch ein Verb dieses Namens:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>Der Link führt zu keinem Verb.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>Der Link nennt ein Verb, das Lumora nicht hat.</translation>
    </message>
    <message id="list.common">
        <source></source>
        <translation>Häufige</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Unregelmäßige</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Nur zeigen</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Weitere Apps</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Zurück</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Kopiert</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="person.1.plural">
        <source></source>
        <translation>1. Person Plural</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1. Person Singular</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2. Person Plural</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2. Person Singular</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3. Person Plural</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3. Person Singular</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Datenschutz</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>nach der Bedeutung</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>in Ihrem Text</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>klingt so</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>ähnlich geschrieben</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Suche löschen</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Kein Verb in dieser Schreibweise gefunden. Meinten Sie …</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Kein Verb gefunden.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Auch in den konjugierten Formen suchen</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verb, Bedeutung oder Form</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Wählen Sie ein Verb, um seine Konjugation zu sehen.</translation>
    </message>
    <message id="select.hint">
        <source></source>
        <translation>Oder geben Sie eine Form ein: „irions“ führt zu aller.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Datenerfassung</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Zählt, welche Teile des Programms verwendet werden. Die Zahlen bleiben auf diesem Gerät und werden an niemanden gesendet.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Sprechtempo</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Konjugationen</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>Die Suche in konjugierten Formen findet „être“ auch über „suis“ oder „étaient“.</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Namen der Zeiten</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>Französisch</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Übersetzt</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Verlauf</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Verlauf löschen</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Verlauf löschen</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>Der Verlauf enthält die letzten %d Verben, die Sie geöffnet haben.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Alle Verben aus dem Verlauf entfernen?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Konjugierte Formen durchsuchen</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Übersetzungen durchsuchen (%@)</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Suche</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Wortanfang</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Überall</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Sortieren nach</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Französisch</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Übersetzung</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Übersetzungen</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automatisch</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Niederländisch</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Englisch</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Französisch</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Deutsch</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italienisch</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portugiesisch</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Spanisch</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Türkisch</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Text kopieren</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Per E-Mail senden</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>„%1“ konnte nicht gesendet werden.</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Auf diesem Gerät ist kein E-Mail-Programm eingerichtet.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Drucken</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>„%1“ konnte nicht gedruckt werden.</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Drucker werden gesucht …</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Auf diesem Gerät gibt es keinen Drucker.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Drucker wählen</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Speichern</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Speichern unter</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>„%1“ konnte nicht gespeichert werden.</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Hier gibt es keine Ordner</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Als Webseite speichern</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Dateiname</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Als PDF speichern</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Als Text speichern</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message id="sheet.copy.form">
        <source></source>
        <translation>Form kopieren</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Zeile kopieren</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>Dieselbe Form anderswo</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Langsam vorsprechen</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Vielen Dank für Ihre Nachricht. Wir antworten so bald wie möglich.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Nachricht gesendet</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favoriten</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Verlauf</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verben</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Konditional</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Konditional II</translation>
    </message>
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
Wenn du angerufen hättest, wäre ich gekommen.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Drückt aus, was unter einer Bedingung geschehen wäre; nach „si“ steht das Plusquamperfekt (Indikativ). Er drückt auch Bedauern oder einen Vorwurf aus: „tu aurais dû attendre“, du hättest warten sollen.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Konditional I</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
Wenn ich Zeit hätte, würde ich kommen.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Drückt aus, was unter einer Bedingung geschehen würde; nach „si“ steht das Imperfekt (Indikativ). Er lässt auch einen Wunsch oder eine Bitte höflich klingen: „je voudrais un café“.</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Konditional II, 2. Form</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
Ohne diesen Lärm hätte er bis Mittag geschlafen.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Bedeutet dasselbe wie der Konditional II, gehört aber der literarischen Sprache an. Die Formen sind die des Konjunktivs Plusquamperfekt, ohne „que“.</translation>
    </message>
    <message id="tense.con.secondpast_french">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.ind">
        <source></source>
        <translation>Indikativ</translation>
    </message>
    <message id="tense.ind.future">
        <source></source>
        <translation>Futur I</translation>
    </message>
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
Ich rufe dich an, wenn du fertig bist.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Drückt Künftiges, ein Versprechen oder eine Vorhersage aus. Es steht auch nach „quand“, wo man im Deutschen meist das Präsens setzt.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imperfekt</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
Als ich klein war, las ich viel.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Beschreibt, wie etwas war, was gerade im Gange war oder was sich wiederholte. Es zeichnet den Hintergrund einer Erzählung, während das Perfekt die Ereignisse wiedergibt.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futur II</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
Bis morgen Mittag werde ich dieses Buch ausgelesen haben.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Drückt aus, was zu einem bestimmten Zeitpunkt in der Zukunft abgeschlossen sein wird. Es kann auch eine Vermutung über Vergangenes ausdrücken: „il aura oublié“, er wird es vergessen haben.</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Historisches Plusquamperfekt</translation>
    </message>
    <message id="tense.ind.pastperfect.example">
        <source></source>
        <translation>Dès qu’il eut mangé, il sortit.
Sobald er gegessen hatte, ging er hinaus.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Drückt aus, was kurz vor einem im Historischen Perfekt erzählten Ereignis abgeschlossen war. Es ist eine literarische Zeit, vor allem nach „quand“, „dès que“ und „après que“.</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Plusquamperfekt</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
Der Zug war schon abgefahren, als ich ankam.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Drückt aus, was vor einem anderen Zeitpunkt der Vergangenheit schon geschehen war. Nach „si“ nennt es eine nicht erfüllte Bedingung: „si tu avais su“, wenn du das gewusst hättest.</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Präsens</translation>
    </message>
    <message id="tense.ind.present.example">
        <source></source>
        <translation>Je travaille à Lyon depuis deux ans.
Ich arbeite seit zwei Jahren in Lyon.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Drückt aus, was gerade geschieht, was üblich ist oder was immer gilt. Mit „depuis“ bezeichnet es, was in der Vergangenheit begonnen hat und noch andauert.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Perfekt</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Gestern haben wir das Museum besucht.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Erzählt, was geschehen und abgeschlossen ist oder was jetzt noch nachwirkt. Es ist die alltägliche Vergangenheit, im Gespräch wie in den meisten Texten.</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Historisches Perfekt</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.
Sie öffnete die Tür und sah das Meer.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Erzählt abgeschlossene Ereignisse in Romanen, Märchen und Geschichtswerken. Im Gespräch hört man es fast nie; dort tritt das Perfekt an seine Stelle.</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Andere Formen</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Imperativ</translation>
    </message>
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Brich früh auf und sei vor Mittag zurück.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Drückt einen Befehl, einen Rat oder eine Aufforderung aus; „tu“, „nous“ und „vous“ fallen weg. Die seltene Vergangenheitsform verlangt, dass etwas bis zu einem Zeitpunkt erledigt ist.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Partizip</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.
Nachdem er seine Arbeit beendet hatte, ging er singend hinaus.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>Das Partizip Präsens nennt eine begleitende Handlung; mit „en“ bildet es das Gerundium. Das Partizip Perfekt bildet zusammengesetzte Zeiten; „ayant parlé“ nennt, was vorausging.</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Konjunktiv</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Konjunktiv Imperfekt</translation>
    </message>
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
Er musste vor Tagesanbruch aufbrechen.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Literarische Form: Nach einem Verb in der Vergangenheit ersetzt sie den Konjunktiv Präsens. Im Alltag bleibt es auch dort beim Konjunktiv Präsens: „il fallait que je parte“.</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Konjunktiv Perfekt</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
Ich freue mich, dass du gekommen bist.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Ersetzt den Konjunktiv Präsens, wenn die Handlung schon abgeschlossen ist. Er drückt auch aus, was später getan sein muss: „il faut que tu aies fini à midi“.</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Konjunktiv Plusquamperfekt</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
Ich bedauerte, dass sie ohne mich gegangen war.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Literarische Form: Nach einem Verb in der Vergangenheit ersetzt sie den Konjunktiv Perfekt. Sie nennt, was davor geschehen war; im Alltag bleibt es beim Konjunktiv Perfekt.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Konjunktiv Präsens</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
Du musst heute Abend kommen.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Steht nach Ausdrücken des Willens, des Gefühls, des Zweifels oder der Notwendigkeit, etwa „il faut que“. Er steht auch nach manchen Konjunktionen wie „pour que“, „avant que“ und „bien que“.</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.unused">
        <source></source>
        <translation>nicht gebräuchlich</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Konditional</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indikativ</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Andere</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Konjunktiv</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verben</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Französische Verben</translation>
    </message>
    <message id="verb.marks">
        <source></source>
        <translation>Stämme und Endungen hervorheben</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Mehr</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Modus</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>die gesuchte Form</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Männerstimme</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Frauenstimme</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Die Lautstärke ist sehr niedrig. Erhöhen Sie sie, um die Aussprache zu hören.</translation>
    </message>
    <message id="web.again">
        <source></source>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora konnte in diesem Browser nicht starten. Versuchen Sie es erneut oder schließen Sie vorher andere Tabs mit Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Favoriten, Verlauf und Einstellungen werden in diesem Browser als Kopie aufbewahrt. Sichern Sie sie ab und zu in einer Datei.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Favoriten, Verlauf und Einstellungen bleiben in diesem Browser auf diesem Gerät. Löschen Sie dessen Daten, gehen sie verloren: Eine Sicherungsdatei bewahrt sie.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Dieser Browser bewahrt nichts auf: Favoriten, Verlauf und Einstellungen gehen mit dem Schließen des Tabs verloren. Sichern Sie sie in einer Datei.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Drucken oder als PDF speichern</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Teilen</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora ist in einem anderen Tab dieses Browsers geöffnet.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Hier verwenden</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora läuft jetzt in einem anderen Tab weiter.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Dieser Browser hat keine französische Stimme.</translation>
    </message>
</context>
</TS>
