# What every target of ours is compiled with.
add_library(lumora_warnings INTERFACE)
target_compile_options(lumora_warnings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
if(SANITIZE)
    list(JOIN SANITIZE "," lumora_sanitizers)
    target_compile_options(lumora_warnings INTERFACE
        -fsanitize=${lumora_sanitizers} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(lumora_warnings INTERFACE -fsanitize=${lumora_sanitizers})
endif()
