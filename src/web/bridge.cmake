# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The logic as one WebAssembly file with the module that loads it, and from these
# and the page the files that a host serves: build/wasm/site.
set(site ${PROJECT_BINARY_DIR}/site)
set(page ${CMAKE_CURRENT_SOURCE_DIR}/page)
set(generated ${PROJECT_BINARY_DIR}/page)

add_executable(lumora_web_module bridge.cpp)
target_link_libraries(lumora_web_module PRIVATE lumora_web lumora_warnings)
set_target_properties(lumora_web_module PROPERTIES
    OUTPUT_NAME lumora SUFFIX .mjs RUNTIME_OUTPUT_DIRECTORY ${generated})
target_link_options(lumora_web_module PRIVATE
    -O2 --closure=0 -sMODULARIZE -sEXPORT_ES6 -sENVIRONMENT=worker,node -sDYNAMIC_EXECUTION=0
    -sALLOW_MEMORY_GROWTH -sINITIAL_MEMORY=33554432 -sFILESYSTEM -sEXIT_RUNTIME=0 --no-entry
    -sEXPORTED_RUNTIME_METHODS=FS,UTF8ToString,allocateUTF8,ccall
    -sEXPORTED_FUNCTIONS=_malloc,_free)

# Printed row by row against the file of the desktop.
add_executable(print_forms ${PROJECT_SOURCE_DIR}/tests/web/print_forms.cpp)
target_link_libraries(print_forms PRIVATE lumora_web SQLite::SQLite3 lumora_warnings)
set_target_properties(print_forms PROPERTIES SUFFIX .js RUNTIME_OUTPUT_DIRECTORY ${generated})
target_link_options(print_forms PRIVATE -sNODERAWFS -sENVIRONMENT=node -sALLOW_MEMORY_GROWTH)

get_property(texts GLOBAL PROPERTY LUMORA_TEXTS)
get_property(icons GLOBAL PROPERTY LUMORA_ICONS)
file(GLOB_RECURSE page_sources CONFIGURE_DEPENDS
    ${page}/*.ts ${page}/*.css ${page}/*.html ${page}/*.json ${page}/*.mjs)
list(FILTER page_sources EXCLUDE REGEX "/node_modules/")
set(content ${PROJECT_SOURCE_DIR}/content)
set(tables ${content}/models.tsv ${content}/retired_ids.tsv ${content}/verbs.tsv)
add_custom_command(
    OUTPUT ${site}/index.html
    COMMAND node ${page}/build.mjs ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR} ${PROJECT_VERSION}
    DEPENDS lumora_web_module lumora_resources ${page_sources} ${texts} ${icons} ${tables}
            ${PROJECT_SOURCE_DIR}/src/qt/qml/controls/Theme.qml
    COMMENT "Putting the site together"
    VERBATIM)
add_custom_target(lumora_site ALL DEPENDS ${site}/index.html)
