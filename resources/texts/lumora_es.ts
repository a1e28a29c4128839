<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Quitar</translation>
    </message>
    <message id="action.open">
        <source></source>
        <translation>Abrir</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Escuchar</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Leer este tiempo</translation>
    </message>
    <message id="action.remove">
        <source></source>
        <translation>Eliminar</translation>
    </message>
    <message id="action.stop">
        <source></source>
        <translation>Parar</translation>
    </message>
    <message id="app.title">
        <source></source>
        <translation>Lumora</translation>
    </message>
    <message id="backup.kind">
        <source></source>
        <translation>Favoritos e historial</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>No se puede acceder a los favoritos ni al historial en este momento. Inténtalo más tarde.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Este archivo no procede de Lumora o está dañado.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Este archivo procede de una versión más reciente de Lumora. Actualiza Lumora para restaurarlo.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>No se puede escribir el archivo. Elige otra ubicación.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Restaurar…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Favoritos nuevos: %d
Nuevos en el historial: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Restauración terminada</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>No se ha restaurado nada</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>No encontrados: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Guardar favoritos e historial…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favoritos: %d
Verbos en el historial: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Guardado</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>No se ha guardado nada</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Guardar y restaurar</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostrar u ocultar la lista</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Compartir</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menú</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Listo</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contacto</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>No se pudo enviar el correo</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Comprueba que haya un programa de correo configurado en este dispositivo e inténtalo de nuevo.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Aún no tienes favoritos. Marca un verbo con la estrella para encontrarlo aquí.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>«%1» ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Aquí no hay ningún archivo de este tipo.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Reemplazar</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>forma irregular</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>la raíz cambia</translation>
    </message>
    <message id="hint.compound">
        <source></source>
        <translation>compuesto</translation>
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
        <translation>pasado</translation>
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
        <translation>Aún no has consultado ningún verbo. Los verbos que abras aparecerán aquí.</translation>
    </message>
    <message id="keys.ctrl">
        <source></source>
        <translation>Ctrl</translation>
    </message>
    <message id="keys.enter">
        <source></source>
        <translation>Intro</translation>
    </message>
    <message id="keys.escape">
        <source></source>
        <translation>Esc</translation>
    </message>
    <message id="keys.find">
        <source></source>
        <translation>Buscar; Intro abre el primer resultado</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Abrir un verbo, oír una forma</translation>
    </message>
    <message id="keys.part">
        <source></source>
        <translation>Parte siguiente de la ventana</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Salir</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>Lo que ofrece una fila</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Mayús</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Teclas</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Otro modo, otro valor</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>Lumora tiene otro verbo con este nombre:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>El enlace no lleva a ningún verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>El enlace nombra un verbo que Lumora no tiene.</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Más aplicaciones</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Atrás</translation>
    </message>
    <message id="notice.copied">
        <source></source>
        <translation>Copiado</translation>
    </message>
    <message id="notice.saved">
        <source></source>
        <translation>Guardado como %1</translation>
    </message>
    <message id="options.button">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Privacidad</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>por su significado</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>en tu texto</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>suena igual</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>se escribe parecido</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Ningún verbo encontrado tal como está escrito. ¿Querías decir…?</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>No se ha encontrado ningún verbo.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Buscar también en las formas conjugadas</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verbo, significado o forma</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Elige un verbo para ver su conjugación.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Ajustes</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Recopilación de datos</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Cuenta qué partes del programa se usan. Los datos permanecen en este dispositivo y no se envían a nadie.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Velocidad de la voz</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Conjugaciones</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>La búsqueda en las formas conjugadas encuentra «être» también por «suis» o «étaient».</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Nombres de los tiempos</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>En francés</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Traducidos</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Historial</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Borrar el historial</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Borrar el historial</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>El historial contiene los últimos %d verbos que has abierto.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>¿Eliminar todos los verbos del historial?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Buscar en formas conjugadas</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Buscar en traducciones: %@</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Búsqueda</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Inicio</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Cualquier parte</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Ordenar por</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Francés</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Traducción</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Traducciones</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automático</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Neerlandés</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Inglés</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Francés</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Alemán</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Portugués</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Español</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turco</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Versión %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copiar texto</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Enviar por correo</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>No se pudo enviar «%1».</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>No hay ningún programa de correo configurado en este dispositivo.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Imprimir</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>No se pudo imprimir «%1».</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>No hay ninguna impresora en este dispositivo.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Elige una impresora</translation>
    </message>
    <message id="share.save">
        <source></source>
        <translation>Guardar</translation>
    </message>
    <message id="share.save.as">
        <source></source>
        <translation>Guardar como</translation>
    </message>
    <message id="share.save.failed">
        <source></source>
        <translation>No se pudo guardar «%1».</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Aquí no hay carpetas</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Guardar como página web</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Nombre del archivo</translation>
    </message>
    <message id="share.save.pdf">
        <source></source>
        <translation>Guardar como PDF</translation>
    </message>
    <message id="share.save.text">
        <source></source>
        <translation>Guardar como texto</translation>
    </message>
    <message id="share.save.up">
        <source></source>
        <translation>Carpeta superior</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Gracias por tu mensaje. Te responderemos lo antes posible.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Mensaje enviado</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favoritos</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Historial</translation>
    </message>
    <message id="tabs.list">
        <source></source>
        <translation>Verbos</translation>
    </message>
    <message id="tense.con">
        <source></source>
        <translation>Condicional</translation>
    </message>
    <message id="tense.con.firstpast">
        <source></source>
        <translation>Condicional compuesto</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condicional simple</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condicional compuesto, 2.ª forma</translation>
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
        <translation>Futuro simple</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Pretérito imperfecto</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro compuesto</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Pretérito anterior</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pretérito pluscuamperfecto</translation>
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
        <translation>Pretérito perfecto compuesto</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Pretérito perfecto simple</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Otras formas</translation>
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
        <translation>Subjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Imperfecto de subjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Perfecto de subjuntivo</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Pluscuamperfecto de subjuntivo</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Presente de subjuntivo</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.unused">
        <source></source>
        <translation>no se usa</translation>
    </message>
    <message id="type.conditional.full">
        <source></source>
        <translation>Condicional</translation>
    </message>
    <message id="type.indicative.full">
        <source></source>
        <translation>Indicativo</translation>
    </message>
    <message id="type.other.full">
        <source></source>
        <translation>Otros</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Subjuntivo</translation>
    </message>
    <message id="verb.list">
        <source></source>
        <translation>Verbos</translation>
    </message>
    <message id="verb.list.full">
        <source></source>
        <translation>Verbos franceses</translation>
    </message>
    <message id="verb.marks">
        <source></source>
        <translation>Marcar raíces y terminaciones</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Más</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>la forma buscada</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Voz de hombre</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Voz de mujer</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>El volumen está muy bajo. Súbelo para oír la pronunciación.</translation>
    </message>
</context>
</TS>
