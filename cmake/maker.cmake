# Who makes the program: what the package and its description name.
set(LUMORA_MAKER "Brindle" CACHE STRING "Name of the maker")
set(LUMORA_SUPPORT_ADDRESS "support@brindle.example" CACHE STRING "Where users write to")
set(LUMORA_WEBSITE "https://www.brindle.example" CACHE STRING "The maker's website")
