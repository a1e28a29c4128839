# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of ours is compiled with.
add_library(lumora_warnings INTERFACE)
target_compile_options(lumora_warnings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor
    # Another compiler is for fuzzing only and knows other warnings.
    $<$<CXX_COMPILER_ID:GNU>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # It takes "text" + std::string for overlapping memory (GCC bug 105651).
    target_compile_options(lumora_warnings INTERFACE -Wno-restrict)
endif()
if(SANITIZE)
    list(JOIN SANITIZE "," lumora_sanitizers)
    target_compile_options(lumora_warnings INTERFACE
        -fsanitize=${lumora_sanitizers} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(lumora_warnings INTERFACE -fsanitize=${lumora_sanitizers})
endif()
