# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Who makes the program and where the maker is found: settings of the build, for
# the program, its package and its description alike.
set(LUMORA_MAKER "Brindle" CACHE STRING "Name of the maker")
set(LUMORA_SUPPORT_ADDRESS "support@brindle.example" CACHE STRING "Where users write to")
set(LUMORA_WEBSITE_URL "https://www.brindle.example" CACHE STRING "The maker's website")
set(LUMORA_CONTACT_URL "https://www.brindle.example/contact" CACHE STRING
    "The maker's page for those whose device sends no mail")
set(LUMORA_STORE_URL "https://apps.brindle.example/" CACHE STRING
    "The store's address; the country code follows it at once")
set(LUMORA_STORE_AFFILIATE_TOKEN "brndle" CACHE STRING
    "The maker's six characters in the store's addresses")
string(LENGTH "${LUMORA_STORE_AFFILIATE_TOKEN}" token_length)
if(NOT token_length EQUAL 6)
    message(FATAL_ERROR "LUMORA_STORE_AFFILIATE_TOKEN has to have six characters")
endif()
