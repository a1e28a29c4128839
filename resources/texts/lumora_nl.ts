<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favoriet</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Verwijderen</translation>
    </message>
    <message id="action.open">
        <source></source>
        <translation>Openen</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Beluisteren</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Deze tijd voorlezen</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Verwijderen</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Stoppen</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favorieten en geschiedenis</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>Favorieten en geschiedenis zijn nu niet bereikbaar. Probeer het later opnieuw.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Dit bestand is niet door Lumora bewaard of het is beschadigd.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Dit bestand komt uit een nieuwere versie van Lumora. Werk Lumora bij om het te herstellen.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Het bestand kan niet worden gelezen.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Het bestand kan niet worden geschreven. Kies een andere plaats.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Herstellen…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Nieuwe favorieten: %d
Nieuw in de geschiedenis: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Hersteld</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Er is niets hersteld</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Niet gevonden: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Favorieten en geschiedenis bewaren…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favorieten: %d
Werkwoorden in de geschiedenis: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Bewaard</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Er is niets bewaard</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Bewaren en herstellen</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Lijst tonen of verbergen</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Delen</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favoriet</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="card.about">
        <source></source>
        <translation>Over dit werkwoord</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>Net zo vervoegd</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Hulpwerkwoord</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Groep</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1e groep: regelmatige werkwoorden op -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2e groep: werkwoorden op -ir zoals finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3e groep: onregelmatige werkwoorden</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1e groep</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2e groep</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3e groep</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Gelijknamig</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinitief</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Voltooide infinitief</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>alleen in de infinitief gebruikt</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Vervoegd zoals</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>zoals %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Volgend werkwoord</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Let op</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>het deelwoord past zich alleen aan een voorafgaand lijdend voorwerp aan</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>het deelwoord past zich alleen na être aan het onderwerp aan</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>het deelwoord past zich aan het onderwerp aan</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>het deelwoord past zich niet aan het onderwerp aan</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>het deelwoord verandert nooit</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Zonder se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Vorig werkwoord</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Met se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>alleen in de derde persoon gebruikt</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspiré: geen elisie en geen liaison ervoor</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>onvolledig: sommige vormen worden niet gebruikt</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>met en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>onpersoonlijk: alleen met il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>figuurlijk ook met ils</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>wederkerend: met se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Niet gebruikt in</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Hoe gewoon</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>een van de 100 gewoonste werkwoorden</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>een van de 500 gewoonste werkwoorden</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>een van de 2000 gewoonste werkwoorden</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>levend gebruik</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>zeldzaam, verouderd of vakterm</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Alleen gebruikt in</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Gereed</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contact</translation>
    </message>
    <message id="drawer.here">
        <source></source>
        <translation>Je bent hier</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Annuleren</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>E-mail kon niet worden verzonden</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Controleer of er op dit apparaat een e-mailprogramma is ingesteld en probeer het opnieuw.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Je hebt nog geen favorieten. Markeer een werkwoord met de ster om het hier terug te vinden.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>‘%1’ bestaat al. Vervangen?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Hier staat geen bestand van dit soort.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Vervangen</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>onregelmatige vorm</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>de stam verandert</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>samengesteld</translation>
    </message>
    <message id="hint.compound_french">
        <source></source>
        <translation>composé</translation>
    </message>
    <message id="hint.feminine">
        <source></source>
        <translation>vrouw.</translation>
    </message>
    <message id="hint.feminine.plural">
        <source></source>
        <translation>vrouw. mv.</translation>
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
        <translation>mann.</translation>
    </message>
    <message id="hint.masculine.plural">
        <source></source>
        <translation>mann. mv.</translation>
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
        <translation>voltooid</translation>
    </message>
    <message id="hint.past_french">
        <source></source>
        <translation>passé</translation>
    </message>
    <message id="hint.present">
        <source></source>
        <translation>tegenwoordig</translation>
    </message>
    <message id="hint.present_french">
        <source></source>
        <translation>présent</translation>
    </message>
    <message id="history.empty">
        <source></source>
        <translation>Je hebt nog geen werkwoorden bekeken. De werkwoorden die je opent, verschijnen hier.</translation>
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
        <translation>Zoeken; Enter opent het eerste resultaat</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Een werkwoord openen, een vorm bekijken</translation>
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
        <translation>Volgende deel van het venster</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Afsluiten</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>Wat een rij biedt</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Shift</translation>
    </message>
    <message id="keys.space">
        <source></source>
        <translation>Spatie</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Voorlezen stoppen</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Toetsen</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Andere wijs, andere waarde</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora heeft nog een werkwoord met deze naam:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>De link leidt niet naar een werkwoord.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>De link noemt een werkwoord dat Lumora niet heeft.</translation>
    </message>
    <message id="list.common">
        <source></source>
        <translation>Gangbaar</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Onregelmatig</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Toon alleen</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Meer apps</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Terug</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Gekopieerd</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Opgeslagen als %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Instellingen</translation>
    </message>
    <message id="person.1.plural">
        <source></source>
        <translation>1e persoon meervoud</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1e persoon enkelvoud</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2e persoon meervoud</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2e persoon enkelvoud</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3e persoon meervoud</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3e persoon enkelvoud</translation>
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
        <translation>naar betekenis</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>in je tekst</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>klinkt zo</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>lijkt erop</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Zoekopdracht wissen</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Geen werkwoord gevonden zoals getypt. Bedoelde je …</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Geen werkwoord gevonden.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Ook in de vervoegde vormen zoeken</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Werkwoord, betekenis of vorm</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Kies een werkwoord om de vervoeging te zien.</translation>
    </message>
    <message id="select.hint">
        <source></source>
        <translation>Of typ een vorm: ‘irions’ leidt naar aller.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Instellingen</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Gegevensverzameling</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Telt welke onderdelen van het programma worden gebruikt. De tellingen blijven op dit apparaat en worden met niemand gedeeld.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Spreeksnelheid</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Vervoegingen</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>Zoeken in vervoegde vormen vindt ‘être’ ook via ‘suis’ of ‘étaient’.</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Namen van de tijden</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>Frans</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Vertaald</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Geschiedenis</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Annuleren</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Geschiedenis wissen</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Geschiedenis wissen</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>De geschiedenis bevat de laatste %d werkwoorden die je hebt geopend.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Alle werkwoorden uit de geschiedenis verwijderen?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Zoeken in vervoegde vormen</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Zoeken in vertalingen (%@)</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Zoeken</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Woordbegin</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Overal</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Sorteren op</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Frans</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Vertaling</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Vertalingen</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automatisch</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Nederlands</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Engels</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Frans</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Duits</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italiaans</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portugees</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Spaans</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turks</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Versie %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Tekst kopiëren</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Verzenden per e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>‘%1’ kon niet worden verzonden.</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Op dit apparaat is geen e-mailprogramma ingesteld.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Afdrukken</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>‘%1’ kon niet worden afgedrukt.</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Printers zoeken…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Op dit apparaat is geen printer.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Kies een printer</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Opslaan</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Opslaan als</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>‘%1’ kon niet worden opgeslagen.</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Geen mappen in deze map</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Opslaan als webpagina</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Bestandsnaam</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Opslaan als pdf</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Opslaan als tekst</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Bovenliggende map</translation>
    </message>
    <message id="sheet.copy.form">
        <source></source>
        <translation>Vorm kopiëren</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Rij kopiëren</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>Dezelfde vorm elders</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Langzaam uitspreken</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Bedankt voor je bericht. We antwoorden zo snel mogelijk.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Bericht verzonden</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favorieten</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Geschiedenis</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Werkwoorden</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Conditionalis</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Conditionalis verleden tijd</translation>
    </message>
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
Als je had gebeld, was ik gekomen.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Geeft aan wat er onder een voorwaarde gebeurd zou zijn; na ‘si’ staat dan de voltooid verleden tijd. Deze vorm drukt ook spijt of een verwijt uit: ‘tu aurais dû attendre’, je had moeten wachten.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Conditionalis tegenwoordige tijd</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
Als ik tijd had, zou ik komen.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Geeft aan wat er onder een voorwaarde zou gebeuren; na ‘si’ staat dan de onvoltooid verleden tijd. Deze vorm maakt ook een wens of een verzoek beleefd: ‘je voudrais un café’.</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Conditionalis verleden tijd, 2e vorm</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
Zonder dat lawaai had hij tot twaalf uur geslapen.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Betekent hetzelfde als de conditionalis verleden tijd, maar hoort bij de literaire taal. De vormen zijn die van de conjunctief voltooid verleden tijd, zonder ‘que’.</translation>
    </message>
    <message id="tense.con.secondpast_french">
        <source></source>
        <translation>Conditionnel passé 2e forme</translation>
    </message>
    <message id="tense.ind">
        <source></source>
        <translation>Indicatief</translation>
    </message>
    <message id="tense.ind.future">
        <source></source>
        <translation>Onvoltooid toekomende tijd</translation>
    </message>
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
Ik bel je als je klaar bent.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Geeft aan wat er zal gebeuren, of drukt een belofte of voorspelling uit. Anders dan in het Nederlands staat deze tijd ook na ‘quand’, als het om de toekomst gaat.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Onvoltooid verleden tijd</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
Toen ik klein was, las ik veel.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Beschrijft hoe het was, wat er aan de gang was of wat zich herhaalde. Deze tijd schetst de achtergrond; de voltooid tegenwoordige tijd vertelt de gebeurtenissen.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Voltooid toekomende tijd</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
Morgen om twaalf uur zal ik dit boek uit hebben.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Geeft aan wat op een bepaald moment in de toekomst voltooid zal zijn. Deze tijd kan ook een vermoeden over het verleden uitdrukken: ‘il aura oublié’, hij zal het wel vergeten zijn.</translation>
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
        <translation>Dès qu’il eut mangé, il sortit.
Zodra hij gegeten had, ging hij naar buiten.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Geeft aan wat net voltooid was vóór een gebeurtenis die in de passé simple verteld wordt. Het is een literaire tijd, vooral na ‘quand’, ‘dès que’ en ‘après que’.</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Voltooid verleden tijd</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
De trein was al vertrokken toen ik aankwam.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Geeft aan wat er al gebeurd was vóór een ander moment in het verleden. Na ‘si’ noemt deze tijd een onvervulde voorwaarde: ‘si tu avais su’, als je het had geweten.</translation>
    </message>
    <message id="tense.ind.pluperfect_french">
        <source></source>
        <translation>Plus-que-parfait</translation>
    </message>
    <message id="tense.ind.present">
        <source></source>
        <translation>Onvoltooid tegenwoordige tijd</translation>
    </message>
    <message id="tense.ind.present.example">
        <source></source>
        <translation>Je travaille à Lyon depuis deux ans.
Ik werk al twee jaar in Lyon.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Geeft aan wat nu gebeurt, wat een gewoonte is of wat altijd waar is. Met ‘depuis’ gaat het om wat in het verleden begon en nog voortduurt.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Voltooid tegenwoordige tijd</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Gisteren hebben we het museum bezocht.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Vertelt wat er gebeurd en voorbij is, of wat nu nog gevolgen heeft. Het is de gewone tijd voor het verleden, in gesprekken en in de meeste teksten.</translation>
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
        <translation>Elle ouvrit la porte et vit la mer.
Ze opende de deur en zag de zee.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Vertelt over afgesloten gebeurtenissen in romans, sprookjes en geschiedenisboeken. In gesproken taal hoort men deze tijd bijna nooit; daar staat de voltooid tegenwoordige tijd.</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Overige vormen</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Imperatief</translation>
    </message>
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Vertrek vroeg en wees vóór twaalf uur terug.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Drukt een bevel, een advies of een uitnodiging uit; ‘tu’, ‘nous’ en ‘vous’ vallen weg. De zeldzame voltooide vorm zegt dat iets vóór een bepaald moment gedaan moet zijn.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Deelwoord</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.
Toen zijn werk af was, ging hij zingend naar buiten.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>Het tegenwoordig deelwoord noemt een begleidende handeling; met ‘en’ vormt het de gérondif. Het voltooid deelwoord vormt samengestelde tijden; ‘ayant parlé’ geeft aan wat eerder gebeurd is.</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Conjunctief</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Conjunctief verleden tijd</translation>
    </message>
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
Hij moest vóór het aanbreken van de dag vertrekken.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Literaire vorm die na een verleden tijd de conjunctief tegenwoordige tijd vervangt. In de omgangstaal blijft de conjunctief tegenwoordige tijd staan: ‘il fallait que je parte’.</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Conjunctief voltooid tegenwoordige tijd</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
Ik ben blij dat je gekomen bent.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Vervangt de conjunctief tegenwoordige tijd als de handeling al voltooid is. Deze vorm geeft ook aan wat later voltooid moet zijn: ‘il faut que tu aies fini à midi’.</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Conjunctief voltooid verleden tijd</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
Ik vond het jammer dat ze zonder mij was vertrokken.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Literaire vorm die na een verleden tijd de conjunctief voltooid tegenwoordige tijd vervangt. Geeft aan wat nog eerder was gebeurd; de omgangstaal behoudt de conjunctief voltooid tegenwoordige tijd.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Conjunctief tegenwoordige tijd</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
Je moet vanavond komen.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Staat na uitdrukkingen van wil, gevoel, twijfel of noodzaak, zoals ‘il faut que’. Deze vorm staat ook na sommige voegwoorden, zoals ‘pour que’, ‘avant que’ en ‘bien que’.</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.unused">
        <source></source>
        <translation>niet in gebruik</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Conditionalis</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicatief</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Overige</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Conjunctief</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Werkwoorden</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Franse werkwoorden</translation>
    </message>
    <message id="verb.marks">
        <source></source>
        <translation>Stammen en uitgangen markeren</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Meer</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Wijs</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>de gezochte vorm</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Mannenstem</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Vrouwenstem</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>Het volume staat erg laag. Zet het hoger om de uitspraak te horen.</translation>
    </message>
    <message id="web.again">
        <source></source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora kon niet starten in deze browser. Probeer het opnieuw of sluit eerst andere tabbladen met Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Favorieten, geschiedenis en instellingen worden als kopie in deze browser bewaard. Sla af en toe een back-upbestand op.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Favorieten, geschiedenis en instellingen worden in deze browser op dit apparaat bewaard. Ze verdwijnen als u de gegevens ervan wist: een back-upbestand bewaart ze.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Deze browser bewaart niets: favorieten, geschiedenis en instellingen gaan verloren als het tabblad wordt gesloten. Sla ze op in een back-upbestand.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Afdrukken of opslaan als pdf</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Delen</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora is geopend in een ander tabblad van deze browser.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Hier gebruiken</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora gaat nu verder in een ander tabblad.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Deze browser heeft geen Franse stem.</translation>
    </message>
</context>
</TS>
