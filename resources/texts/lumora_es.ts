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
    <message id="card.about">
        <source></source>
        <translation>Sobre este verbo</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>De igual conjugación</translation>
    </message>
    <message id="card.auxiliary">
        <source></source>
        <translation>Auxiliar</translation>
    </message>
    <message id="card.group">
        <source></source>
        <translation>Grupo</translation>
    </message>
    <message id="card.group.1">
        <source></source>
        <translation>1.er grupo: verbos regulares en -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2.º grupo: verbos en -ir como finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3.er grupo: verbos irregulares</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1.er grupo</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2.º grupo</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3.er grupo</translation>
    </message>
    <message id="card.homograph">
        <source></source>
        <translation>Homónimo</translation>
    </message>
    <message id="card.infinitive">
        <source></source>
        <translation>Infinitivo</translation>
    </message>
    <message id="card.infinitive.past">
        <source></source>
        <translation>Infinitivo compuesto</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>solo se usa en infinitivo</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Se conjuga como</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>como %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Verbo siguiente</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Nota</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>el participio solo concuerda con un objeto directo que lo precede</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>el participio concuerda con el sujeto solo después de être</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>el participio concuerda con el sujeto</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>el participio no concuerda con el sujeto</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>el participio es invariable</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Sin se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Verbo anterior</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Con se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>solo se usa en tercera persona</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspirada: sin elisión ni enlace</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>defectivo: algunas formas no se usan</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>con en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>impersonal: solo con il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>también con ils en sentido figurado</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>pronominal: con se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>No se usa en</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Frecuencia</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>uno de los 100 verbos más comunes</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>uno de los 500 verbos más comunes</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>uno de los 2000 verbos más comunes</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>de uso vivo</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>raro, antiguo o técnico</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Solo se usa en</translation>
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
    <message id="drawer.here">
        <source></source>
        <translation>Estás aquí</translation>
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
        <translation>Abrir un verbo, ver una forma</translation>
    </message>
    <message id="keys.page_down">
        <source></source>
        <translation>AvPág</translation>
    </message>
    <message id="keys.page_up">
        <source></source>
        <translation>RePág</translation>
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
    <message id="keys.space">
        <source></source>
        <translation>Espacio</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Detener la lectura</translation>
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
    <message id="list.common">
        <source></source>
        <translation>Frecuentes</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Irregulares</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Mostrar solo</translation>
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
    <message id="person.1.plural">
        <source></source>
        <translation>1.ª persona del plural</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1.ª persona del singular</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2.ª persona del plural</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2.ª persona del singular</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3.ª persona del plural</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3.ª persona del singular</translation>
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
    <message id="select.hint">
        <source></source>
        <translation>O escribe una forma: «irions» lleva a aller.</translation>
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
    <message id="sheet.copy.form">
        <source></source>
        <translation>Copiar la forma</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Copiar la fila</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>La misma forma en otros lugares</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Decir despacio</translation>
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
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
Si hubieras llamado, habría venido.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Expresa lo que habría pasado bajo cierta condición; tras «si» va el pretérito pluscuamperfecto de indicativo. También expresa arrepentimiento o reproche: «tu aurais dû attendre», deberías haber esperado.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condicional simple</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
Si tuviera tiempo, vendría.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Expresa lo que ocurriría bajo cierta condición; tras «si» va el pretérito imperfecto de indicativo. También sirve para expresar con cortesía un deseo o una petición: «je voudrais un café».</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condicional compuesto, 2.ª forma</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
Sin aquel ruido habría dormido hasta el mediodía.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Significa lo mismo que el condicional compuesto, pero es propio de la lengua literaria. Sus formas son las del pluscuamperfecto de subjuntivo, sin «que».</translation>
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
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
Te llamaré cuando estés listo.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Expresa lo que ocurrirá, una promesa o un pronóstico. También se usa tras «quand», donde el español usa el presente de subjuntivo.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Pretérito imperfecto</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
Cuando era pequeño, leía mucho.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Describe cómo eran las cosas, qué estaba ocurriendo o qué se repetía. Pinta el fondo de un relato, mientras que el pretérito perfecto compuesto cuenta los hechos.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro compuesto</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
Mañana a mediodía habré terminado este libro.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Expresa lo que estará terminado en un momento dado del futuro. También puede expresar una suposición sobre el pasado: «il aura oublié», se habrá olvidado.</translation>
    </message>
    <message id="tense.ind.pastfuture_french">
        <source></source>
        <translation>Futur antérieur</translation>
    </message>
    <message id="tense.ind.pastperfect">
        <source></source>
        <translation>Pretérito anterior</translation>
    </message>
    <message id="tense.ind.pastperfect.example">
        <source></source>
        <translation>Dès qu’il eut mangé, il sortit.
En cuanto hubo comido, salió.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Expresa lo que había acabado justo antes de un hecho contado en pretérito perfecto simple. Es un tiempo literario, sobre todo tras «quand», «dès que» y «après que».</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pretérito pluscuamperfecto</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
El tren ya había salido cuando llegué.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Expresa lo que ya había ocurrido antes de otro momento del pasado. Tras «si» indica una condición que no se cumplió: «si tu avais su», si lo hubieras sabido.</translation>
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
Trabajo en Lyon desde hace dos años.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Expresa lo que ocurre ahora, lo que es habitual o lo que siempre es verdad. Con «depuis» indica lo que empezó en el pasado y aún continúa.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Pretérito perfecto compuesto</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Ayer visitamos el museo.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Cuenta lo que ocurrió y ya terminó, o aquello cuyo efecto aún importa. Es el pasado de todos los días; se usa también donde en español se dice «visité».</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Pretérito perfecto simple</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.
Abrió la puerta y vio el mar.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Cuenta hechos acabados en novelas, cuentos y libros de historia. Casi nunca se usa al hablar: lo sustituye el pretérito perfecto compuesto.</translation>
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
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Sal temprano y estate de vuelta antes del mediodía.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Da una orden, un consejo o una invitación; los pronombres «tu», «nous» y «vous» se omiten. La forma de pasado, poco frecuente, pide que algo esté hecho antes de un momento dado.</translation>
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
Terminado su trabajo, salió cantando.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>El participio presente indica una acción que acompaña a otra; con «en» forma el gerundio. El participio pasado forma los tiempos compuestos; «ayant parlé» indica lo que ocurrió antes.</translation>
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
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
Era preciso que partiera antes del alba.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Forma literaria: tras un verbo en pasado sustituye al presente de subjuntivo. El uso corriente mantiene el presente de subjuntivo: «il fallait que je parte».</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Perfecto de subjuntivo</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
Me alegro de que hayas venido.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Sustituye al presente de subjuntivo cuando la acción ya se ha realizado. También indica lo que deberá estar hecho más tarde: «il faut que tu aies fini à midi».</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Pluscuamperfecto de subjuntivo</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
Lamentaba que ella se hubiera ido sin mí.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Forma literaria: tras un verbo en pasado sustituye al perfecto de subjuntivo. Indica lo que había ocurrido antes; el uso corriente mantiene el perfecto de subjuntivo.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Presente de subjuntivo</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
Hace falta que vengas esta noche.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Se usa tras expresiones de voluntad, sentimiento, duda o necesidad, como «il faut que». También sigue a algunas conjunciones, como «pour que», «avant que» y «bien que».</translation>
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
    <message id="web.again">
        <source></source>
        <translation>Intentarlo de nuevo</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>Lumora no ha podido iniciarse en este navegador. Inténtelo de nuevo o cierre antes las otras pestañas de Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Los favoritos, el historial y los ajustes se guardan como copia en este navegador. Guarde de vez en cuando un archivo de copia de seguridad.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Los favoritos, el historial y los ajustes se guardan en este navegador, en este dispositivo. Se pierden si borra sus datos: un archivo de copia de seguridad los conserva.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Este navegador no guarda nada: los favoritos, el historial y los ajustes se pierden al cerrar la pestaña. Guárdelos en un archivo de copia de seguridad.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Imprimir o guardar como PDF</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Compartir</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>Lumora está abierto en otra pestaña de este navegador.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Usarlo aquí</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>Lumora continúa ahora en otra pestaña.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Este navegador no tiene ninguna voz francesa.</translation>
    </message>
</context>
</TS>
