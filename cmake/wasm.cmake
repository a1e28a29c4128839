# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What the web edition is built with and from: Debian's emscripten, its headers of
# header-only libraries, and the sources of SQLite and ICU, which tools/prepare-web
# has laid ready.
set(LUMORA_WASM_LIBRARIES ${PROJECT_SOURCE_DIR}/build/wasm-libraries)
if(NOT EXISTS ${LUMORA_WASM_LIBRARIES}/sqlite/sqlite3.c)
    message(FATAL_ERROR "run tools/prepare-web first")
endif()
enable_language(C)

# A forgotten C++ extension costs nothing here, and the optimiser much: -O2 is as
# fast as -O3 and smaller.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
# The library's own code of strings is compiled to be small, and two to three times
# slower than ours.
add_compile_definitions(_LIBCPP_DISABLE_EXTERN_TEMPLATE)
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions)

add_library(lumora_wasm_headers INTERFACE)
target_include_directories(lumora_wasm_headers SYSTEM INTERFACE ${LUMORA_WASM_LIBRARIES}/include)
# Names, as find_package has them.
foreach(name IN ITEMS fmt::fmt tl::expected nlohmann_json::nlohmann_json Threads::Threads
                      PkgConfig::PLIST)
    add_library(${name} INTERFACE IMPORTED GLOBAL)
    target_link_libraries(${name} INTERFACE lumora_wasm_headers)
endforeach()
target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY)

add_library(lumora_sqlite STATIC ${LUMORA_WASM_LIBRARIES}/sqlite/sqlite3.c)
target_include_directories(lumora_sqlite SYSTEM INTERFACE ${LUMORA_WASM_LIBRARIES}/sqlite)
# The write-ahead log wants memory that processes share; a browser's files have none.
target_compile_definitions(lumora_sqlite PRIVATE
    SQLITE_THREADSAFE=0 SQLITE_SECURE_DELETE SQLITE_DQS=0 SQLITE_OMIT_LOAD_EXTENSION
    SQLITE_OMIT_DEPRECATED SQLITE_OMIT_WAL SQLITE_DEFAULT_MEMSTATUS=0)
# What a search waits for.
target_compile_options(lumora_sqlite PRIVATE -w -O3)
add_library(SQLite::SQLite3 ALIAS lumora_sqlite)

# Case, composition and properties of characters: their tables are in the code, so
# that no data file is wanted.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/wasm_icu_sources.txt lumora_icu_sources REGEX "^[^#]")
list(TRANSFORM lumora_icu_sources PREPEND ${LUMORA_WASM_LIBRARIES}/icu/)
add_library(lumora_icu STATIC ${lumora_icu_sources})
target_include_directories(lumora_icu SYSTEM PUBLIC ${LUMORA_WASM_LIBRARIES}/icu/common)
# Texts are UTF-8 everywhere: no converters.
target_compile_definitions(lumora_icu PRIVATE U_COMMON_IMPLEMENTATION
    PUBLIC U_STATIC_IMPLEMENTATION U_CHARSET_IS_UTF8=1 UCONFIG_NO_CONVERSION=1)
target_compile_options(lumora_icu PRIVATE -w -std=c++17)
# Reading the headers takes longer than the code. These name something alike.
set_target_properties(lumora_icu PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
foreach(name IN ITEMS ubidi_props ucase umutablecptrie uresbund utrie_swap uvector)
    set_source_files_properties(${LUMORA_WASM_LIBRARIES}/icu/common/${name}.cpp
        PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endforeach()
set_source_files_properties(${LUMORA_WASM_LIBRARIES}/icu/stubdata/stubdata.cpp
    PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
add_library(ICU::uc ALIAS lumora_icu)

# Its linker's scripts need a library of Debian's node, which other nodes do not
# look for there.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "env NODE_PATH=/usr/share/nodejs")
