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
    <message id="action.open">
        <source></source>
        <translation>Open</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Play this tense</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Remove</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favourites and history</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>Favourites and history cannot be reached at the moment. Try again later.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>This file was not saved by Lumora, or it is damaged.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>This file comes from a newer version of Lumora. Update Lumora to restore it.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>The file cannot be read.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>The file cannot be written. Choose another place.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Restore…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>New favourites: %d
New in the history: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Restored</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Nothing was restored</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Not found: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Save favourites and history…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favourites: %d
Verbs in the history: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Saved</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Nothing was saved</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Save and restore</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Show or hide the list</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Share</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favourite</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contact us</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>E-mail could not be sent</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Check that a mail program is set up on this device, then try again.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>You have no favourites yet. Mark a verb with the star to find it here.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>“%1” already exists. Replace it?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>There is no such file in here.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Replace</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>irregular form</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>the stem changes</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>compound</translation>
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
        <translation>past</translation>
    </message>
    <message id="hint.past_french">
        <source></source>
        <translation>passé</translation>
    </message>
    <message id="hint.present">
        <source></source>
        <translation>present</translation>
    </message>
    <message id="hint.present_french">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>You have not looked at any verbs yet. The verbs you open will be listed here.</translation>
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
        <translation>Search; Enter opens the first result</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Open a verb, hear a form</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Next part of the window</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Quit</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>What can be done with a row</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Shift</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Keys</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Another mood, another value</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora has another verb of this name:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>The link does not lead to a verb.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>The link names a verb that Lumora does not have.</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>More apps</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Copied</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Saved as %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Privacy</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>by its meaning</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>in your text</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>sounds alike</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>similar spelling</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Clear the search</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>No verb found as typed. Did you mean …</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>No verb found.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Search the conjugated forms too</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verb, meaning or form</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Select a verb to see its conjugation.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Settings</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Data collection</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Counts which parts of the program are used. The counts stay on this device and are sent to nobody.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Speech rate</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Conjugations</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>A search through the conjugated forms finds “être” by “suis” or “étaient” too.</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Tense names</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>French</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Translated</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Clear history</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Clear history</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>The history holds the last %d verbs you opened.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Remove every verb from the history?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Search conjugated forms</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Search translations (%@)</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Search</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Start of word</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Anywhere</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Sort by</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>French</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Translation</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Translations</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automatic</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Dutch</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>English</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>French</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>German</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italian</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portuguese</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Spanish</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turkish</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Version %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copy text</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Send by e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>“%1” could not be sent.</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>No mail program is set up on this device.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Print</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>“%1” could not be printed.</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Looking for printers…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>There is no printer on this device.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Choose a printer</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Save as</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>“%1” could not be saved.</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>No folders in here</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Save as web page</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>File name</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Save as PDF</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Save as text</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Parent folder</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Thank you for your message. We will answer as soon as we can.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Message sent</translation>
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
    <message id="tense.unused">
        <source></source>
        <translation>not in use</translation>
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
    <message id="verb.marks">
        <source></source>
        <translation>Mark stems and endings</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>More</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Mood</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>the form that was searched for</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Man’s voice</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Woman’s voice</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>The volume is very low. Turn it up to hear the pronunciation.</translation>
    </message>
</context>
</TS>
