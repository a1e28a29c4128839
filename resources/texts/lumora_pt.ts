<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name></name>
    <message id="action.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="action.favourite.remove">
        <source></source>
        <translation>Remover</translation>
    </message>
    <message id="action.open">
        <source></source>
        <translation>Abrir</translation>
    </message>
    <message id="action.play">
        <source></source>
        <translation>Ouvir</translation>
    </message>
    <message id="action.play.tense">
        <source></source>
        <translation>Ler este tempo</translation>
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
        <translation>Favoritos e histórico</translation>
    </message>
    <message id="backup.problem.database">
        <source></source>
        <translation>De momento não é possível aceder aos favoritos e ao histórico. Tente mais tarde.</translation>
    </message>
    <message id="backup.problem.foreign">
        <source></source>
        <translation>Este ficheiro não foi guardado pelo Lumora ou está danificado.</translation>
    </message>
    <message id="backup.problem.newer">
        <source></source>
        <translation>Este ficheiro vem de uma versão mais recente do Lumora. Atualize o Lumora para o restaurar.</translation>
    </message>
    <message id="backup.problem.read">
        <source></source>
        <translation>Não é possível ler o ficheiro.</translation>
    </message>
    <message id="backup.problem.write">
        <source></source>
        <translation>Não é possível escrever o ficheiro. Escolha outro local.</translation>
    </message>
    <message id="backup.restore">
        <source></source>
        <translation>Restaurar…</translation>
    </message>
    <message id="backup.restore.counts">
        <source></source>
        <translation>Novos favoritos: %d
Novos no histórico: %d</translation>
    </message>
    <message id="backup.restore.done">
        <source></source>
        <translation>Restauro concluído</translation>
    </message>
    <message id="backup.restore.failed">
        <source></source>
        <translation>Nada foi restaurado</translation>
    </message>
    <message id="backup.restore.unknown">
        <source></source>
        <translation>Não encontrados: %d</translation>
    </message>
    <message id="backup.save">
        <source></source>
        <translation>Guardar favoritos e histórico…</translation>
    </message>
    <message id="backup.save.counts">
        <source></source>
        <translation>Favoritos: %d
Verbos no histórico: %d</translation>
    </message>
    <message id="backup.save.done">
        <source></source>
        <translation>Guardado</translation>
    </message>
    <message id="backup.save.failed">
        <source></source>
        <translation>Nada foi guardado</translation>
    </message>
    <message id="button.backup">
        <source></source>
        <translation>Guardar e restaurar</translation>
    </message>
    <message id="button.displayMode">
        <source></source>
        <translation>Mostrar ou ocultar a lista</translation>
    </message>
    <message id="button.export">
        <source></source>
        <translation>Partilhar</translation>
    </message>
    <message id="button.favourite">
        <source></source>
        <translation>Favorito</translation>
    </message>
    <message id="button.menu">
        <source></source>
        <translation>Menu</translation>
    </message>
    <message id="card.about">
        <source></source>
        <translation>Sobre este verbo</translation>
    </message>
    <message id="card.alike">
        <source></source>
        <translation>De igual conjugação</translation>
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
        <translation>1.º grupo: verbos regulares em -er</translation>
    </message>
    <message id="card.group.2">
        <source></source>
        <translation>2.º grupo: verbos em -ir como finir</translation>
    </message>
    <message id="card.group.3">
        <source></source>
        <translation>3.º grupo: verbos irregulares</translation>
    </message>
    <message id="card.group.short.1">
        <source></source>
        <translation>1.º grupo</translation>
    </message>
    <message id="card.group.short.2">
        <source></source>
        <translation>2.º grupo</translation>
    </message>
    <message id="card.group.short.3">
        <source></source>
        <translation>3.º grupo</translation>
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
        <translation>Infinitivo composto</translation>
    </message>
    <message id="card.infinitive_only">
        <source></source>
        <translation>usado só no infinitivo</translation>
    </message>
    <message id="card.like">
        <source></source>
        <translation>Conjuga-se como</translation>
    </message>
    <message id="card.like.short">
        <source></source>
        <translation>como %@</translation>
    </message>
    <message id="card.next">
        <source></source>
        <translation>Verbo seguinte</translation>
    </message>
    <message id="card.notes">
        <source></source>
        <translation>Nota</translation>
    </message>
    <message id="card.participle.avoir">
        <source></source>
        <translation>o particípio concorda só com um objeto direto que o precede</translation>
    </message>
    <message id="card.participle.both">
        <source></source>
        <translation>o particípio concorda com o sujeito só depois de être</translation>
    </message>
    <message id="card.participle.etre">
        <source></source>
        <translation>o particípio concorda com o sujeito</translation>
    </message>
    <message id="card.participle.indirect">
        <source></source>
        <translation>o particípio não concorda com o sujeito</translation>
    </message>
    <message id="card.participle.invariable">
        <source></source>
        <translation>o particípio é invariável</translation>
    </message>
    <message id="card.plain">
        <source></source>
        <translation>Sem se</translation>
    </message>
    <message id="card.previous">
        <source></source>
        <translation>Verbo anterior</translation>
    </message>
    <message id="card.pronominal">
        <source></source>
        <translation>Com se</translation>
    </message>
    <message id="card.third_person">
        <source></source>
        <translation>usado só na terceira pessoa</translation>
    </message>
    <message id="card.trait.aspirated">
        <source></source>
        <translation>h aspirado: sem elisão nem ligação</translation>
    </message>
    <message id="card.trait.defective">
        <source></source>
        <translation>defectivo: algumas formas não se usam</translation>
    </message>
    <message id="card.trait.en">
        <source></source>
        <translation>com en</translation>
    </message>
    <message id="card.trait.impersonal">
        <source></source>
        <translation>impessoal: só com il</translation>
    </message>
    <message id="card.trait.plural">
        <source></source>
        <translation>também com ils em sentido figurado</translation>
    </message>
    <message id="card.trait.pronominal">
        <source></source>
        <translation>pronominal: com se</translation>
    </message>
    <message id="card.unused">
        <source></source>
        <translation>Não se usa em</translation>
    </message>
    <message id="card.use">
        <source></source>
        <translation>Frequência</translation>
    </message>
    <message id="card.use.1">
        <source></source>
        <translation>um dos 100 verbos mais comuns</translation>
    </message>
    <message id="card.use.2">
        <source></source>
        <translation>um dos 500 verbos mais comuns</translation>
    </message>
    <message id="card.use.3">
        <source></source>
        <translation>um dos 2000 verbos mais comuns</translation>
    </message>
    <message id="card.use.4">
        <source></source>
        <translation>de uso vivo</translation>
    </message>
    <message id="card.use.5">
        <source></source>
        <translation>raro, antigo ou técnico</translation>
    </message>
    <message id="card.used_only">
        <source></source>
        <translation>Usa-se só em</translation>
    </message>
    <message id="common.done">
        <source></source>
        <translation>Concluído</translation>
    </message>
    <message id="common.ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="contact">
        <source></source>
        <translation>Contacte-nos</translation>
    </message>
    <message id="drawer.here">
        <source></source>
        <translation>Está aqui</translation>
    </message>
    <message id="export.cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="export.email.error">
        <source></source>
        <translation>Não foi possível enviar o e-mail</translation>
    </message>
    <message id="export.email.message">
        <source></source>
        <translation>Verifique se há um programa de correio configurado neste dispositivo e tente novamente.</translation>
    </message>
    <message id="favourites.empty">
        <source></source>
        <translation>Ainda não tem favoritos. Marque um verbo com a estrela para o encontrar aqui.</translation>
    </message>
    <message id="file.exists">
        <source></source>
        <translation>«%1» já existe. Substituir?</translation>
    </message>
    <message id="file.none">
        <source></source>
        <translation>Aqui não há nenhum ficheiro deste tipo.</translation>
    </message>
    <message id="file.replace">
        <source></source>
        <translation>Substituir</translation>
    </message>
    <message id="form.irregular">
        <source></source>
        <translation>forma irregular</translation>
    </message>
    <message id="form.stem">
        <source></source>
        <translation>o radical muda</translation>
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
        <translation>passado</translation>
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
        <translation>Ainda não consultou nenhum verbo. Os verbos que abrir aparecem aqui.</translation>
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
        <translation>Pesquisar; Enter abre o primeiro resultado</translation>
    </message>
    <message id="keys.open">
        <source></source>
        <translation>Abrir um verbo, ver uma forma</translation>
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
        <translation>Parte seguinte da janela</translation>
    </message>
    <message id="keys.quit">
        <source></source>
        <translation>Sair</translation>
    </message>
    <message id="keys.row">
        <source></source>
        <translation>O que uma linha oferece</translation>
    </message>
    <message id="keys.shift">
        <source></source>
        <translation>Shift</translation>
    </message>
    <message id="keys.space">
        <source></source>
        <translation>Espaço</translation>
    </message>
    <message id="keys.stop">
        <source></source>
        <translation>Parar a leitura</translation>
    </message>
    <message id="keys.title">
        <source></source>
        <translation>Teclas</translation>
    </message>
    <message id="keys.value">
        <source></source>
        <translation>Outro modo, outro valor</translation>
    </message>
    <message id="link.homographs">
        <source></source>
        <translation>O Lumora tem outro verbo com este nome:</translation>
    </message>
    <message id="link.malformed">
        <source></source>
        <translation>A ligação não conduz a nenhum verbo.</translation>
    </message>
    <message id="link.unknown">
        <source></source>
        <translation>A ligação indica um verbo que o Lumora não tem.</translation>
    </message>
    <message id="list.common">
        <source></source>
        <translation>Comuns</translation>
    </message>
    <message id="list.irregular">
        <source></source>
        <translation>Irregulares</translation>
    </message>
    <message id="list.narrow">
        <source></source>
        <translation>Mostrar apenas</translation>
    </message>
    <message id="moreapps">
        <source></source>
        <translation>Mais aplicações</translation>
    </message>
    <message id="navigation.back">
        <source></source>
        <translation>Voltar</translation>
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
        <translation>Definições</translation>
    </message>
    <message id="person.1.plural">
        <source></source>
        <translation>1.ª pessoa do plural</translation>
    </message>
    <message id="person.1.singular">
        <source></source>
        <translation>1.ª pessoa do singular</translation>
    </message>
    <message id="person.2.plural">
        <source></source>
        <translation>2.ª pessoa do plural</translation>
    </message>
    <message id="person.2.singular">
        <source></source>
        <translation>2.ª pessoa do singular</translation>
    </message>
    <message id="person.3.plural">
        <source></source>
        <translation>3.ª pessoa do plural</translation>
    </message>
    <message id="person.3.singular">
        <source></source>
        <translation>3.ª pessoa do singular</translation>
    </message>
    <message id="privacy">
        <source></source>
        <translation>Privacidade</translation>
    </message>
    <message id="privacy.url">
        <source></source>
        <translation>https://www.brindle.example/lumora/privacy</translation>
    </message>
    <message id="search.by_meaning">
        <source></source>
        <translation>pelo significado</translation>
    </message>
    <message id="search.by_sentence">
        <source></source>
        <translation>no seu texto</translation>
    </message>
    <message id="search.by_sound">
        <source></source>
        <translation>soa igual</translation>
    </message>
    <message id="search.by_spelling">
        <source></source>
        <translation>grafia parecida</translation>
    </message>
    <message id="search.clear">
        <source></source>
        <translation>Limpar a pesquisa</translation>
    </message>
    <message id="search.did_you_mean">
        <source></source>
        <translation>Nenhum verbo encontrado tal como escrito. Será que quis dizer…</translation>
    </message>
    <message id="search.empty">
        <source></source>
        <translation>Nenhum verbo encontrado.</translation>
    </message>
    <message id="search.in_forms">
        <source></source>
        <translation>Procurar também nas formas conjugadas</translation>
    </message>
    <message id="search.placeholder">
        <source></source>
        <translation>Verbo, significado ou forma</translation>
    </message>
    <message id="select">
        <source></source>
        <translation>Escolha um verbo para ver a sua conjugação.</translation>
    </message>
    <message id="select.hint">
        <source></source>
        <translation>Ou digite uma forma: “irions” leva a aller.</translation>
    </message>
    <message id="settings">
        <source></source>
        <translation>Definições</translation>
    </message>
    <message id="settings.analytics">
        <source></source>
        <translation>Recolha de dados</translation>
    </message>
    <message id="settings.analytics.info">
        <source></source>
        <translation>Conta que partes do programa são utilizadas. Os dados ficam neste dispositivo e não são enviados a ninguém.</translation>
    </message>
    <message id="settings.audio.speed">
        <source></source>
        <translation>Velocidade da voz</translation>
    </message>
    <message id="settings.conjugations">
        <source></source>
        <translation>Conjugações</translation>
    </message>
    <message id="settings.conjugations.info">
        <source></source>
        <translation>A pesquisa nas formas conjugadas encontra «être» também por «suis» ou «étaient».</translation>
    </message>
    <message id="settings.copyright">
        <source></source>
        <translation>© Brindle</translation>
    </message>
    <message id="settings.descriptions">
        <source></source>
        <translation>Nomes dos tempos</translation>
    </message>
    <message id="settings.descriptions.original">
        <source></source>
        <translation>Em francês</translation>
    </message>
    <message id="settings.descriptions.translated">
        <source></source>
        <translation>Traduzidos</translation>
    </message>
    <message id="settings.history">
        <source></source>
        <translation>Histórico</translation>
    </message>
    <message id="settings.history_cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="settings.history_clear">
        <source></source>
        <translation>Limpar o histórico</translation>
    </message>
    <message id="settings.history_clear_yes">
        <source></source>
        <translation>Limpar o histórico</translation>
    </message>
    <message id="settings.history_info">
        <source></source>
        <translation>O histórico contém os últimos %d verbos que abriu.</translation>
    </message>
    <message id="settings.history_items_clear">
        <source></source>
        <translation>Remover todos os verbos do histórico?</translation>
    </message>
    <message id="settings.includeconjugations">
        <source></source>
        <translation>Pesquisar formas conjugadas</translation>
    </message>
    <message id="settings.includeenglish">
        <source></source>
        <translation>Pesquisar traduções: %@</translation>
    </message>
    <message id="settings.search">
        <source></source>
        <translation>Pesquisa</translation>
    </message>
    <message id="settings.searchtype.start">
        <source></source>
        <translation>Início</translation>
    </message>
    <message id="settings.searchtype.wildcard">
        <source></source>
        <translation>Qualquer parte</translation>
    </message>
    <message id="settings.sortby">
        <source></source>
        <translation>Ordenar por</translation>
    </message>
    <message id="settings.sortby.original">
        <source></source>
        <translation>Francês</translation>
    </message>
    <message id="settings.sortby.translated">
        <source></source>
        <translation>Tradução</translation>
    </message>
    <message id="settings.translations">
        <source></source>
        <translation>Traduções</translation>
    </message>
    <message id="settings.translations.automatic">
        <source></source>
        <translation>Automático</translation>
    </message>
    <message id="settings.translations.dutch">
        <source></source>
        <translation>Neerlandês</translation>
    </message>
    <message id="settings.translations.english">
        <source></source>
        <translation>Inglês</translation>
    </message>
    <message id="settings.translations.french">
        <source></source>
        <translation>Francês</translation>
    </message>
    <message id="settings.translations.german">
        <source></source>
        <translation>Alemão</translation>
    </message>
    <message id="settings.translations.italian">
        <source></source>
        <translation>Italiano</translation>
    </message>
    <message id="settings.translations.portuguese">
        <source></source>
        <translation>Português</translation>
    </message>
    <message id="settings.translations.spanish">
        <source></source>
        <translation>Espanhol</translation>
    </message>
    <message id="settings.translations.turkish">
        <source></source>
        <translation>Turco</translation>
    </message>
    <message id="settings.version">
        <source></source>
        <translation>Versão %1</translation>
    </message>
    <message id="share.copy">
        <source></source>
        <translation>Copiar texto</translation>
    </message>
    <message id="share.mail">
        <source></source>
        <translation>Enviar por e-mail</translation>
    </message>
    <message id="share.mail.failed">
        <source></source>
        <translation>Não foi possível enviar «%1».</translation>
    </message>
    <message id="share.mail.unavailable">
        <source></source>
        <translation>Não há nenhum programa de correio configurado neste dispositivo.</translation>
    </message>
    <message id="share.print">
        <source></source>
        <translation>Imprimir</translation>
    </message>
    <message id="share.print.failed">
        <source></source>
        <translation>Não foi possível imprimir «%1».</translation>
    </message>
    <message id="share.print.looking">
        <source></source>
        <translation>À procura de impressoras…</translation>
    </message>
    <message id="share.print.none">
        <source></source>
        <translation>Não há nenhuma impressora neste dispositivo.</translation>
    </message>
    <message id="share.print.where">
        <source></source>
        <translation>Escolha uma impressora</translation>
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
        <translation>Não foi possível guardar «%1».</translation>
    </message>
    <message id="share.save.folder.empty">
        <source></source>
        <translation>Não há pastas aqui</translation>
    </message>
    <message id="share.save.html">
        <source></source>
        <translation>Guardar como página Web</translation>
    </message>
    <message id="share.save.name">
        <source></source>
        <translation>Nome do ficheiro</translation>
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
        <translation>Pasta superior</translation>
    </message>
    <message id="sheet.copy.form">
        <source></source>
        <translation>Copiar a forma</translation>
    </message>
    <message id="sheet.copy.row">
        <source></source>
        <translation>Copiar a linha</translation>
    </message>
    <message id="sheet.others">
        <source></source>
        <translation>A mesma forma noutros lugares</translation>
    </message>
    <message id="sheet.slowly">
        <source></source>
        <translation>Dizer devagar</translation>
    </message>
    <message id="support.email">
        <source></source>
        <translation>support@brindle.example</translation>
    </message>
    <message id="support.emailsuccess.subject">
        <source></source>
        <translation>Obrigado pela sua mensagem. Responderemos assim que possível.</translation>
    </message>
    <message id="support.emailsuccess.title">
        <source></source>
        <translation>Mensagem enviada</translation>
    </message>
    <message id="tabs.favourites">
        <source></source>
        <translation>Favoritos</translation>
    </message>
    <message id="tabs.history">
        <source></source>
        <translation>Histórico</translation>
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
        <translation>Condicional composto</translation>
    </message>
    <message id="tense.con.firstpast.example">
        <source></source>
        <translation>Si tu avais appelé, je serais venu.
Se tivesses ligado, eu teria vindo.</translation>
    </message>
    <message id="tense.con.firstpast.use">
        <source></source>
        <translation>Exprime o que teria acontecido sob certa condição; após «si» vem o pretérito mais-que-perfeito do indicativo. Exprime também arrependimento ou censura: «tu aurais dû attendre», devias ter esperado.</translation>
    </message>
    <message id="tense.con.firstpast_french">
        <source></source>
        <translation>Conditionnel passé 1re forme</translation>
    </message>
    <message id="tense.con.present">
        <source></source>
        <translation>Condicional simples</translation>
    </message>
    <message id="tense.con.present.example">
        <source></source>
        <translation>Si j’avais le temps, je viendrais.
Se tivesse tempo, viria.</translation>
    </message>
    <message id="tense.con.present.use">
        <source></source>
        <translation>Exprime o que aconteceria sob certa condição; após «si» vem o pretérito imperfeito do indicativo. Torna também mais cortês um desejo ou um pedido: «je voudrais un café».</translation>
    </message>
    <message id="tense.con.present_french">
        <source></source>
        <translation>Conditionnel présent</translation>
    </message>
    <message id="tense.con.secondpast">
        <source></source>
        <translation>Condicional composto, 2.ª forma</translation>
    </message>
    <message id="tense.con.secondpast.example">
        <source></source>
        <translation>Sans ce bruit, il eût dormi jusqu’à midi.
Sem aquele barulho, ele teria dormido até ao meio-dia.</translation>
    </message>
    <message id="tense.con.secondpast.use">
        <source></source>
        <translation>Significa o mesmo que o condicional composto, mas pertence à língua literária. As suas formas são as do mais-que-perfeito do conjuntivo, sem «que».</translation>
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
        <translation>Futuro simples</translation>
    </message>
    <message id="tense.ind.future.example">
        <source></source>
        <translation>Je t’appellerai quand tu seras prêt.
Ligo-te quando estiveres pronto.</translation>
    </message>
    <message id="tense.ind.future.use">
        <source></source>
        <translation>Exprime o que acontecerá, uma promessa ou uma previsão. Emprega-se também depois de «quand», onde o português usa o futuro do conjuntivo.</translation>
    </message>
    <message id="tense.ind.future_french">
        <source></source>
        <translation>Futur simple</translation>
    </message>
    <message id="tense.ind.imperfect">
        <source></source>
        <translation>Pretérito imperfeito</translation>
    </message>
    <message id="tense.ind.imperfect.example">
        <source></source>
        <translation>Quand j’étais petit, je lisais beaucoup.
Quando era pequeno, lia muito.</translation>
    </message>
    <message id="tense.ind.imperfect.use">
        <source></source>
        <translation>Descreve como eram as coisas, o que estava a acontecer ou o que se repetia. Pinta o cenário de uma história, enquanto o pretérito perfeito composto conta os factos.</translation>
    </message>
    <message id="tense.ind.imperfect_french">
        <source></source>
        <translation>Imparfait</translation>
    </message>
    <message id="tense.ind.pastfuture">
        <source></source>
        <translation>Futuro composto</translation>
    </message>
    <message id="tense.ind.pastfuture.example">
        <source></source>
        <translation>Demain à midi, j’aurai fini ce livre.
Amanhã ao meio-dia já terei acabado este livro.</translation>
    </message>
    <message id="tense.ind.pastfuture.use">
        <source></source>
        <translation>Exprime o que estará concluído num dado momento do futuro. Pode também exprimir uma suposição sobre o passado: «il aura oublié», deve ter-se esquecido.</translation>
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
Assim que acabou de comer, saiu.</translation>
    </message>
    <message id="tense.ind.pastperfect.use">
        <source></source>
        <translation>Exprime o que terminou logo antes de um facto contado no pretérito perfeito simples. É um tempo literário, sobretudo depois de «quand», «dès que» e «après que».</translation>
    </message>
    <message id="tense.ind.pastperfect_french">
        <source></source>
        <translation>Passé antérieur</translation>
    </message>
    <message id="tense.ind.pluperfect">
        <source></source>
        <translation>Pretérito mais-que-perfeito</translation>
    </message>
    <message id="tense.ind.pluperfect.example">
        <source></source>
        <translation>Le train était déjà parti quand je suis arrivé.
O comboio já tinha partido quando cheguei.</translation>
    </message>
    <message id="tense.ind.pluperfect.use">
        <source></source>
        <translation>Exprime o que já tinha acontecido antes de outro momento do passado. Depois de «si», indica uma condição não cumprida: «si tu avais su», se tivesses sabido.</translation>
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
Trabalho em Lyon há dois anos.</translation>
    </message>
    <message id="tense.ind.present.use">
        <source></source>
        <translation>Exprime o que acontece agora, o que é habitual ou o que é sempre verdade. Com «depuis», indica o que começou no passado e ainda continua.</translation>
    </message>
    <message id="tense.ind.present_french">
        <source></source>
        <translation>Présent</translation>
    </message>
    <message id="tense.ind.presentperfect">
        <source></source>
        <translation>Pretérito perfeito composto</translation>
    </message>
    <message id="tense.ind.presentperfect.example">
        <source></source>
        <translation>Hier, nous avons visité le musée.
Ontem visitámos o museu.</translation>
    </message>
    <message id="tense.ind.presentperfect.use">
        <source></source>
        <translation>Conta o que aconteceu e terminou, ou aquilo cujo efeito ainda importa. É o passado de todos os dias; usa-se onde o português diz «visitámos», e não «temos visitado».</translation>
    </message>
    <message id="tense.ind.presentperfect_french">
        <source></source>
        <translation>Passé composé</translation>
    </message>
    <message id="tense.ind.simplepast">
        <source></source>
        <translation>Pretérito perfeito simples</translation>
    </message>
    <message id="tense.ind.simplepast.example">
        <source></source>
        <translation>Elle ouvrit la porte et vit la mer.
Ela abriu a porta e viu o mar.</translation>
    </message>
    <message id="tense.ind.simplepast.use">
        <source></source>
        <translation>Conta factos concluídos em romances, contos e livros de história. Quase não se usa na fala, onde é substituído pelo pretérito perfeito composto.</translation>
    </message>
    <message id="tense.ind.simplepast_french">
        <source></source>
        <translation>Passé simple</translation>
    </message>
    <message id="tense.other">
        <source></source>
        <translation>Outras formas</translation>
    </message>
    <message id="tense.other.imperative">
        <source></source>
        <translation>Imperativo</translation>
    </message>
    <message id="tense.other.imperative.example">
        <source></source>
        <translation>Pars tôt et sois rentré avant midi.
Sai cedo e está de volta antes do meio-dia.</translation>
    </message>
    <message id="tense.other.imperative.use">
        <source></source>
        <translation>Dá uma ordem, um conselho ou um convite; os pronomes «tu», «nous» e «vous» omitem-se. A forma do passado, rara, pede que algo esteja feito até certo momento.</translation>
    </message>
    <message id="tense.other.imperative_french">
        <source></source>
        <translation>Impératif</translation>
    </message>
    <message id="tense.other.participle">
        <source></source>
        <translation>Particípio</translation>
    </message>
    <message id="tense.other.participle.example">
        <source></source>
        <translation>Ayant fini son travail, il est sorti en chantant.
Tendo acabado o trabalho, saiu a cantar.</translation>
    </message>
    <message id="tense.other.participle.use">
        <source></source>
        <translation>O particípio presente indica uma ação que acompanha outra; com «en» forma o gerúndio. O particípio passado forma os tempos compostos; «ayant parlé» indica o que aconteceu antes.</translation>
    </message>
    <message id="tense.other.participle_french">
        <source></source>
        <translation>Participe</translation>
    </message>
    <message id="tense.sub">
        <source></source>
        <translation>Conjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect">
        <source></source>
        <translation>Imperfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.imperfect.example">
        <source></source>
        <translation>Il fallait qu’il partît avant l’aube.
Era preciso que ele partisse antes do amanhecer.</translation>
    </message>
    <message id="tense.sub.imperfect.use">
        <source></source>
        <translation>Forma literária: depois de um verbo no passado, substitui o presente do conjuntivo. O uso corrente mantém o presente do conjuntivo: «il fallait que je parte».</translation>
    </message>
    <message id="tense.sub.imperfect_french">
        <source></source>
        <translation>Subjonctif imparfait</translation>
    </message>
    <message id="tense.sub.past">
        <source></source>
        <translation>Perfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.past.example">
        <source></source>
        <translation>Je suis content que tu sois venue.
Fico contente por teres vindo.</translation>
    </message>
    <message id="tense.sub.past.use">
        <source></source>
        <translation>Substitui o presente do conjuntivo quando a ação já está concluída. Indica também o que deve estar concluído mais tarde: «il faut que tu aies fini à midi».</translation>
    </message>
    <message id="tense.sub.past_french">
        <source></source>
        <translation>Subjonctif passé</translation>
    </message>
    <message id="tense.sub.pluperfect">
        <source></source>
        <translation>Mais-que-perfeito do conjuntivo</translation>
    </message>
    <message id="tense.sub.pluperfect.example">
        <source></source>
        <translation>Je regrettais qu’elle fût partie sans moi.
Lamentava que ela tivesse partido sem mim.</translation>
    </message>
    <message id="tense.sub.pluperfect.use">
        <source></source>
        <translation>Forma literária: depois de um verbo no passado, substitui o perfeito do conjuntivo. Indica o que tinha acontecido antes; o uso corrente mantém o perfeito do conjuntivo.</translation>
    </message>
    <message id="tense.sub.pluperfect_french">
        <source></source>
        <translation>Subjonctif plus-que-parfait</translation>
    </message>
    <message id="tense.sub.present">
        <source></source>
        <translation>Presente do conjuntivo</translation>
    </message>
    <message id="tense.sub.present.example">
        <source></source>
        <translation>Il faut que tu viennes ce soir.
É preciso que venhas esta noite.</translation>
    </message>
    <message id="tense.sub.present.use">
        <source></source>
        <translation>Usa-se depois de expressões de vontade, sentimento, dúvida ou necessidade, como «il faut que». Segue também algumas conjunções, como «pour que», «avant que» e «bien que».</translation>
    </message>
    <message id="tense.sub.present_french">
        <source></source>
        <translation>Subjonctif présent</translation>
    </message>
    <message id="tense.unused">
        <source></source>
        <translation>não se usa</translation>
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
        <translation>Outros</translation>
    </message>
    <message id="type.subjunctive.full">
        <source></source>
        <translation>Conjuntivo</translation>
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
        <translation>Destacar radicais e terminações</translation>
    </message>
    <message id="verb.menu">
        <source></source>
        <translation>Mais</translation>
    </message>
    <message id="verb.moods">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="verb.searched">
        <source></source>
        <translation>a forma procurada</translation>
    </message>
    <message id="verb.voice.man">
        <source></source>
        <translation>Voz masculina</translation>
    </message>
    <message id="verb.voice.woman">
        <source></source>
        <translation>Voz feminina</translation>
    </message>
    <message id="volume.low.warning">
        <source></source>
        <translation>O volume está muito baixo. Aumente-o para ouvir a pronúncia.</translation>
    </message>
    <message id="web.again">
        <source></source>
        <translation>Tentar de novo</translation>
    </message>
    <message id="web.failed">
        <source></source>
        <translation>O Lumora não pôde iniciar neste navegador. Tente de novo ou feche primeiro os outros separadores do Lumora.</translation>
    </message>
    <message id="web.kept.copy">
        <source></source>
        <translation>Os favoritos, o histórico e as definições são guardados em cópia neste navegador. Guarde de vez em quando um ficheiro de cópia de segurança.</translation>
    </message>
    <message id="web.kept.files">
        <source></source>
        <translation>Os favoritos, o histórico e as definições são guardados neste navegador, neste dispositivo. Perdem-se se apagar os dados dele: um ficheiro de cópia de segurança conserva-os.</translation>
    </message>
    <message id="web.kept.nothing">
        <source></source>
        <translation>Este navegador não guarda nada: os favoritos, o histórico e as definições perdem-se ao fechar o separador. Guarde-os num ficheiro de cópia de segurança.</translation>
    </message>
    <message id="web.print">
        <source></source>
        <translation>Imprimir ou guardar como PDF</translation>
    </message>
    <message id="web.share">
        <source></source>
        <translation>Partilhar</translation>
    </message>
    <message id="web.tab.open">
        <source></source>
        <translation>O Lumora está aberto noutro separador deste navegador.</translation>
    </message>
    <message id="web.tab.take">
        <source></source>
        <translation>Usar aqui</translation>
    </message>
    <message id="web.tab.taken">
        <source></source>
        <translation>O Lumora continua agora noutro separador.</translation>
    </message>
    <message id="web.voice.none">
        <source></source>
        <translation>Este navegador não tem nenhuma voz francesa.</translation>
    </message>
</context>
</TS>
