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
    <message id="card.about">
        <source></source>
        <translation>About this verb</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>Conjugated alike</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Auxiliary</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Group</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1st group: regular verbs in -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2nd group: verbs in -ir like finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3rd group: irregular verbs</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1st group</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2nd group</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3rd group</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Same name</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinitive</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Past infinitive</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>used in the infinitive only</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Conjugated like</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>like %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Next verb</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Note</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>the participle agrees only with a direct object before it</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>the participle agrees with the subject after être only</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>the participle agrees with the subject</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>the participle does not agree with the subject</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>the participle never changes</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Without se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Previous verb</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>With se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>used in the third person only</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>aspirated h: no elision and no liaison before it</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>defective: some forms are not used</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>with en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>impersonal: only with il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>also with ils in figurative use</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>pronominal: used with se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Not used in</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>How common</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>one of the 100 commonest verbs</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>one of the 500 commonest verbs</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>one of the 2,000 commonest verbs</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>in living use</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>rare, old or of a trade</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Used only in</translation>
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
    <message id="drawer.here">
        <source></source>
        <translation>You are here</translation>
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
        <translation>Open a verb, look at a form</translation>
    </message>
    <message id="keys.page_down">
        <source></source>
        <translation>PgDn</translation>
    </message>
    <message id="keys.page_up">
        <source></source>
        <translation>PgUp</translation>
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
    <message id="keys.space">
        <source></source>
        <translation>Space</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Stop what is spoken</translation>
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
    <message id="list.common">
        <source></source>
        <translation>Common</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Irregular</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Show only</translation>
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
    <message id="person.1.plural">
        <source></source>
        <translation>1st person plural</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1st person singular</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2nd person plural</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2nd person singular</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3rd person plural</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3rd person singular</translation>
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
    <message id="select.hint">
        <source></source>
        <translation>Or type a form: “irions” leads to aller.</translation>
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
    <message id="sheet.copy.form">
        <source></source>
        <translation>Copy the form</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Copy the row</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>The same form elsewhere</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Say it slowly</translation>
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
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
If you had called, I would have come.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Says what would have happened under a given condition; the “si” clause is in the pluperfect. It also expresses regret or blame: “tu aurais dû attendre”, you should have waited.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Present conditional</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
If I had time, I would come.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Says what would happen under a given condition; the “si” clause is in the imperfect. It also makes a wish or a request polite: “je voudrais un café”.</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Past conditional, second form</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
But for that noise, he would have slept until noon.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Means the same as the past conditional, but belongs to literature. Its forms are those of the pluperfect subjunctive, without “que”.</translation>
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
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
I’ll call you when you’re ready.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Says what will happen, or makes a promise or a forecast. Unlike English, French uses it after “quand” too when the future is meant.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imperfect</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
When I was little, I used to read a lot.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Describes how things were, what was going on, or what used to happen. It sets the background of a story, while the present perfect relates the events.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Future perfect</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
By noon tomorrow I will have finished this book.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Says what will be finished by a given moment in the future. It may also express a guess about the past: “il aura oublié”, he must have forgotten.</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Past anterior</translation>
    </message>
    <message id="tense.ind.pastperfect.example">
        <source></source>
        <translation>Dès qu’il eut mangé, il sortit.
As soon as he had eaten, he went out.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Says what was finished just before an event told in the past historic. It is a literary tense, found mostly after “quand”, “dès que” and “après que”.</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pluperfect</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
The train had already left when I arrived.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Says what had already happened before another moment in the past. After “si”, it names a condition that was not met: “si tu avais su”, if you had known.</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Present</translation>
    </message>
    <message id="tense.ind.present.example">
        <source></source>
        <translation>Je travaille à Lyon depuis deux ans.
I have been working in Lyon for two years.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Says what is happening now, what is usual, or what is always true. With “depuis”, it says what began in the past and is still going on.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Present perfect</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Yesterday we visited the museum.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Tells what happened and is over, or what has a result that matters now. It is the everyday past tense, used also where English has the simple past: “we visited”.</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Past historic</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.
She opened the door and saw the sea.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Narrates completed events in novels, tales and works of history. It is hardly ever spoken; in speech the present perfect takes its place.</translation>
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
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Leave early and be back before noon.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Gives an order, a piece of advice or an invitation; the pronouns “tu”, “nous” and “vous” are left out. The past form, which is rare, asks that something be done by a given time.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Participle</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.
Having finished his work, he went out singing.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>The present participle describes an action that goes with another; with “en” it forms the gerund. The past participle forms compound tenses; “ayant parlé” tells what was done before.</translation>
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
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
He had to leave before dawn.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>A literary form: after a verb in the past, it replaces the present subjunctive. Everyday French keeps the present subjunctive there: “il fallait que je parte”.</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Past subjunctive</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
I’m glad you came.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Takes the place of the present subjunctive when the action is already done. It also says what must be done by a later moment: “il faut que tu aies fini à midi”.</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Pluperfect subjunctive</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
I was sorry that she had left without me.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>A literary form: after a verb in the past, it replaces the past subjunctive. It tells what had happened earlier still; everyday French keeps the past subjunctive.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Present subjunctive</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
You have to come tonight.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Follows expressions of will, feeling, doubt or necessity, such as “vouloir que” or “il faut que”. It also follows some conjunctions, such as “pour que”, “avant que” and “bien que”.</translation>
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
    <message id="web.again">
        <source></source>
        <translation>Try again</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora could not start in this browser. Try again, or close other tabs with Lumora first.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Favourites, history and settings are kept in this browser as a copy. Save a backup file now and then.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Favourites, history and settings are kept in this browser on this device. They go when you delete its data: a backup file keeps them.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>This browser keeps nothing: favourites, history and settings are lost when the tab is closed. Save them in a backup file.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Print, or save as PDF</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Share</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora is open in another tab of this browser.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Use it here</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora now goes on in another tab.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>This browser has no French voice.</translation>
    </message>
</context>
</TS>
