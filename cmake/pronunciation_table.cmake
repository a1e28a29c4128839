# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

cmake_minimum_required(VERSION 3.25)

# Turns the table TABLE into the C++ source OUTPUT, a sorted array. The head of
# content/pronunciation.tsv describes the table.

set(letter "a|à|â|b|c|ç|d|e|é|è|ê|ë|f|g|h|i|î|ï|j|k|l|m|n|o|ô|ö|p|q|r|s|t|u|ù|û|ü|v|w|x|y|z|œ|-")
set(sound "a|ɑ̃|b|d|e|ɛ|ɛ̃|ə|f|ɡ|i|j|k|l|m|n|ŋ|ɲ|o|ɔ|ɔ̃|ø|œ|œ̃|p|ʁ|s|ʃ|t|u|v|w|y|ɥ|z|ʒ|E|Ø")
set(entries)
set(seen)
set(number 0)

function(refuse reason)
    message(FATAL_ERROR "${TABLE}:${number}: ${reason}")
endfunction()

file(READ ${TABLE} text)
foreach(mark ";" "[" "]" "\r")
    string(FIND "${text}" "${mark}" place)
    if(NOT place EQUAL -1)
        string(SUBSTRING "${text}" 0 ${place} before)
        string(REGEX REPLACE "[^\n]" "" ends "${before}")
        string(LENGTH "${ends}" number)
        math(EXPR number "${number} + 1")
        refuse("semicolons, brackets and carriage returns have no meaning here")
    endif()
endforeach()
if(NOT text MATCHES "\n$")
    refuse("the last line has no end")
endif()
string(REGEX REPLACE "\n$" "" text "${text}")
string(REPLACE "\n" ";" lines "${text}")
foreach(line IN LISTS lines)
    math(EXPR number "${number} + 1")
    if(line MATCHES "^#" OR line STREQUAL "letters\tsaid\tverb")
        continue()
    endif()
    if(NOT line MATCHES "^([^\t]+)\t([^\t]+)\t([^\t]+)$")
        refuse("not three columns: \"${line}\"")
    endif()
    set(letters "${CMAKE_MATCH_1}")
    set(said "${CMAKE_MATCH_2}")
    set(verb "${CMAKE_MATCH_3}")
    if(NOT letters MATCHES "^\\^?(${letter})+\\$?$")
        refuse("not the letters of a word: \"${letters}\"")
    endif()
    if(NOT said MATCHES "^((${letter})|/(${sound})+/)+$")
        refuse("neither letters nor /sounds/: \"${said}\"")
    endif()
    if(NOT verb MATCHES "^(${letter})+$")
        refuse("no infinitive: \"${verb}\"")
    endif()
    if("${letters} ${verb}" IN_LIST seen)
        refuse("\"${letters}\" is there twice")
    endif()
    list(APPEND seen "${letters} ${verb}")
    string(REGEX REPLACE "^-$" "" verb "${verb}")
    string(REGEX REPLACE "^\\^" "" bare "${letters}")
    # The bare letters lead so that the lines sort by them.
    list(APPEND entries "${bare}\t    {U\"${letters}\", U\"${said}\", U\"${verb}\"},")
endforeach()

list(SORT entries)
list(TRANSFORM entries REPLACE "^[^\t]*\t" "")
string(JOIN "\n" body ${entries})
file(WRITE ${OUTPUT} "// Made from pronunciation.tsv.
#include \"sound/exception_table.h\"

namespace lumora::sound {

namespace {

constexpr Exception kExceptions[] = {
${body}
};

} // namespace

std::span<const Exception> exceptionTable()
{
    return kExceptions;
}

} // namespace lumora::sound
")
