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
    <message id="action.open">
        <source></source>
        <translation>Apri</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Ascolta</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Leggi questo tempo</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Elimina</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Ferma</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Preferiti e cronologia</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>Al momento non è possibile accedere a preferiti e cronologia. Riprova più tardi.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Questo file non è stato salvato da Lumora oppure è danneggiato.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Questo file proviene da una versione più recente di Lumora. Aggiorna Lumora per ripristinarlo.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Impossibile leggere il file.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Impossibile scrivere il file. Scegli un’altra posizione.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Ripristina…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Nuovi preferiti: %d
Nuovi nella cronologia: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Ripristino completato</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Nessun dato ripristinato</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Non trovati: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Salva preferiti e cronologia…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Preferiti: %d
Verbi nella cronologia: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Salvataggio completato</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Nessun dato salvato</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Salva e ripristina</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostra o nascondi l’elenco</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Condividi</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Preferito</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="card.about">
        <source></source>
        <translation>Su questo verbo</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>Coniugati così</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Ausiliare</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Gruppo</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1º gruppo: verbi regolari in -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2º gruppo: verbi in -ir come finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3º gruppo: verbi irregolari</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1º gruppo</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2º gruppo</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3º gruppo</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Omonimo</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinito</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Infinito passato</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>usato solo all’infinito</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Si coniuga come</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>come %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Verbo successivo</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Nota</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>il participio concorda solo con un oggetto diretto che lo precede</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>il participio concorda con il soggetto solo dopo être</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>il participio concorda con il soggetto</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>il participio non concorda con il soggetto</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>il participio è invariabile</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Senza se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Verbo precedente</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Con se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>usato solo alla terza persona</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspirata: senza elisione né liaison</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>difettivo: alcune forme non si usano</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>con en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>impersonale: solo con il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>anche con ils in senso figurato</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>pronominale: con se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Non si usa in</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Frequenza</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>uno dei 100 verbi più comuni</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>uno dei 500 verbi più comuni</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>uno dei 2000 verbi più comuni</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>d’uso vivo</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>raro, antiquato o tecnico</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Si usa solo in</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Fine</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contattaci</translation>
    </message>
    <message id="drawer.here">
        <source></source>
        <translation>Ti trovi qui</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>Impossibile inviare l’e-mail</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Controlla che su questo dispositivo sia configurato un programma di posta, poi riprova.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Non hai ancora preferiti. Segna un verbo con la stella per ritrovarlo qui.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>«%1» esiste già. Sostituirlo?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Qui non c’è nessun file di questo tipo.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Sostituisci</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>forma irregolare</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>la radice cambia</translation>
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
        <translation>femm.</translation>
    </message>
    <message id="hint.feminine.plural">
        <source></source>
        <translation>femm. pl.</translation>
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
        <translation>masch.</translation>
    </message>
    <message id="hint.masculine.plural">
        <source></source>
        <translation>masch. pl.</translation>
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
        <translation>passato</translation>
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
        <translation>Non hai ancora consultato nessun verbo. I verbi che apri compariranno qui.</translation>
    </message>
    <message id="keys.ctrl">
        <source></source>
        <translation>Ctrl</translation>
    </message>
    <message id="keys.enter">
        <source></source>
        <translation>Invio</translation>
    </message>
    <message id="keys.escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="keys.find">
        <source></source>
        <translation>Cerca; Invio apre il primo risultato</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Apri un verbo, esamina una forma</translation>
    </message>
    <message id="keys.page_down">
        <source></source>
        <translation>Pag ↓</translation>
    </message>
    <message id="keys.page_up">
        <source></source>
        <translation>Pag ↑</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Parte successiva della finestra</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Esci</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>Cosa offre una riga</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Maiusc</translation>
    </message>
    <message id="keys.space">
        <source></source>
        <translation>Spazio</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Ferma la lettura</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Tasti</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Altro modo, altro valore</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora ha un altro verbo con questo nome:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>Il collegamento non porta a nessun verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>Il collegamento indica un verbo che Lumora non ha.</translation>
    </message>
    <message id="list.common">
        <source></source>
        <translation>Comuni</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Irregolari</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Mostra solo</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Altre app</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Indietro</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Copiato</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Salvato come %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Impostazioni</translation>
    </message>
    <message id="person.1.plural">
        <source></source>
        <translation>1ª persona plurale</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1ª persona singolare</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2ª persona plurale</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2ª persona singolare</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3ª persona plurale</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3ª persona singolare</translation>
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
        <translation>per significato</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>nel testo</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>suona uguale</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>grafia simile</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Cancella la ricerca</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Nessun verbo trovato così come scritto. Forse intendevi…</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Nessun verbo trovato.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Cerca anche nelle forme coniugate</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verbo, significato o forma</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Scegli un verbo per vederne la coniugazione.</translation>
    </message>
    <message id="select.hint">
        <source></source>
        <translation>Oppure digita una forma: «irions» porta ad aller.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Impostazioni</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Raccolta dati</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Conta quali parti del programma vengono usate. I dati restano su questo dispositivo e non vengono inviati a nessuno.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Velocità della voce</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Coniugazioni</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>La ricerca nelle forme coniugate trova «être» anche con «suis» o «étaient».</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Nomi dei tempi</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>In francese</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Tradotti</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Cronologia</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Cancella la cronologia</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Cancella la cronologia</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>La cronologia contiene gli ultimi %d verbi che hai aperto.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Rimuovere tutti i verbi dalla cronologia?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Cerca nelle forme coniugate</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Cerca nelle traduzioni: %@</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Ricerca</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Inizio parola</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Ovunque</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Ordina per</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Francese</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Traduzione</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Traduzioni</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automatico</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Olandese</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Inglese</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Francese</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Tedesco</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portoghese</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Spagnolo</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turco</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Versione %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copia il testo</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Invia per e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>Impossibile inviare «%1».</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Su questo dispositivo non è configurato nessun programma di posta.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Stampa</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>Impossibile stampare «%1».</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Ricerca delle stampanti…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Su questo dispositivo non c’è nessuna stampante.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Scegli una stampante</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Salva</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Salva con nome</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>Impossibile salvare «%1».</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Qui non ci sono cartelle</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Salva come pagina web</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Nome del file</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Salva come PDF</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Salva come testo</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Cartella superiore</translation>
    </message>
    <message id="sheet.copy.form">
        <source></source>
        <translation>Copia la forma</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Copia la riga</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>La stessa forma altrove</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Pronuncia lentamente</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Grazie per il tuo messaggio. Ti risponderemo appena possibile.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Messaggio inviato</translation>
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
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
Se tu avessi chiamato, sarei venuto.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Esprime ciò che sarebbe avvenuto a certe condizioni; dopo «si» si usa il trapassato prossimo. Esprime anche un rammarico o un rimprovero: «tu aurais dû attendre», avresti dovuto aspettare.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condizionale presente</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
Se avessi tempo, verrei.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Esprime ciò che accadrebbe a certe condizioni; dopo «si» si usa l’imperfetto indicativo. Rende anche cortese un desiderio o una richiesta: «je voudrais un café».</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condizionale passato, 2ª forma</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
Senza quel rumore avrebbe dormito fino a mezzogiorno.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Ha lo stesso significato del condizionale passato, ma appartiene alla lingua letteraria. Le sue forme sono quelle del congiuntivo trapassato, senza «que».</translation>
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
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
Ti chiamerò quando sarai pronto.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Esprime ciò che accadrà, una promessa o una previsione. Come in italiano, si usa anche dopo «quand» se si parla del futuro.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Imperfetto</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
Quando ero piccolo, leggevo molto.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Descrive com’erano le cose, ciò che era in corso o ciò che si ripeteva. Dipinge lo sfondo di un racconto, mentre il passato prossimo narra i fatti.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro anteriore</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
Domani a mezzogiorno avrò finito questo libro.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Esprime ciò che sarà concluso in un dato momento del futuro. Può anche esprimere una supposizione sul passato: «il aura oublié», se ne sarà dimenticato.</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Trapassato remoto</translation>
    </message>
    <message id="tense.ind.pastperfect.example">
        <source></source>
        <translation>Dès qu’il eut mangé, il sortit.
Appena ebbe mangiato, uscì.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Esprime ciò che si concluse subito prima di un fatto narrato al passato remoto. È un tempo letterario, usato soprattutto dopo «quand», «dès que» e «après que».</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Trapassato prossimo</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
Il treno era già partito quando sono arrivato.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Esprime ciò che era già avvenuto prima di un altro momento del passato. Dopo «si» indica una condizione non realizzata: «si tu avais su», se tu l’avessi saputo.</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Presente</translation>
    </message>
    <message id="tense.ind.present.example">
        <source></source>
        <translation>Je travaille à Lyon depuis deux ans.
Lavoro a Lione da due anni.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Esprime ciò che accade ora, ciò che è abituale o ciò che è sempre vero. Con «depuis» indica ciò che è iniziato nel passato e dura ancora.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Passato prossimo</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Ieri abbiamo visitato il museo.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Racconta ciò che è avvenuto ed è concluso, o ciò che ha ancora effetti nel presente. È il passato di tutti i giorni, nel parlato e nella maggior parte dei testi scritti.</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Passato remoto</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.
Aprì la porta e vide il mare.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Racconta fatti conclusi in romanzi, fiabe e libri di storia. Nel parlato non si usa quasi mai: lo sostituisce il passato prossimo.</translation>
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
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Parti presto e sii di ritorno prima di mezzogiorno.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Dà un ordine, un consiglio o un invito; i pronomi «tu», «nous» e «vous» si omettono. La forma passata, rara, chiede che qualcosa sia fatto entro un dato momento.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Participio</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.
Finito il lavoro, è uscito cantando.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>Il participio presente indica un’azione che ne accompagna un’altra; con «en» forma il gerundio. Il participio passato forma i tempi composti; «ayant parlé» indica ciò che è avvenuto prima.</translation>
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
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
Bisognava che partisse prima dell’alba.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Forma letteraria: dopo un verbo al passato sostituisce il congiuntivo presente. Nell’uso comune resta il congiuntivo presente: «il fallait que je parte».</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Congiuntivo passato</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
Sono contento che tu sia venuta.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Sostituisce il congiuntivo presente quando l’azione è già compiuta. Indica anche ciò che dovrà essere compiuto più tardi: «il faut que tu aies fini à midi».</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Congiuntivo trapassato</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
Mi dispiaceva che fosse partita senza di me.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Forma letteraria: dopo un verbo al passato sostituisce il congiuntivo passato. Indica ciò che era avvenuto prima; nell’uso comune resta il congiuntivo passato.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Congiuntivo presente</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
Bisogna che tu venga stasera.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Si usa dopo espressioni di volontà, sentimento, dubbio o necessità, come «il faut que». Segue anche alcune congiunzioni, come «pour que», «avant que» e «bien que».</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.unused">
        <source></source>
        <translation>non in uso</translation>
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
    <message id="verb.marks">
        <source></source>
        <translation>Evidenzia radici e desinenze</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Altro</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>la forma cercata</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Voce maschile</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Voce femminile</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Il volume è molto basso. Alzalo per sentire la pronuncia.</translation>
    </message>
    <message id="web.again">
        <source></source>
        <translation>Riprova</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora non ha potuto avviarsi in questo browser. Riprova, oppure chiudi prima le altre schede di Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Preferiti, cronologia e impostazioni sono conservati in copia in questo browser. Salva di tanto in tanto un file di backup.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Preferiti, cronologia e impostazioni sono conservati in questo browser, su questo dispositivo. Se ne cancelli i dati vanno persi: un file di backup li conserva.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Questo browser non conserva nulla: preferiti, cronologia e impostazioni vanno persi alla chiusura della scheda. Salvali in un file di backup.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Stampa o salva come PDF</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Condividi</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora è aperto in un’altra scheda di questo browser.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Usalo qui</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora ora prosegue in un’altra scheda.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Questo browser non ha una voce francese.</translation>
    </message>
</context>
</TS>
