// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/product_list.h"

namespace lumora::navigation {

namespace {

Product product(const char* language, const char* bundle, const char* appId, const char* storeName)
{
    const std::string name{language};
    return {{"bundle", bundle},
            {"appid", appId},
            {"storedesc", storeName},
            {"name", name + " Verbs"},
            {"icon", "AppIcon" + name}};
}

} // namespace

ProductList::ProductList()
    : apps{
          product("English", "com.brindle.anglia", "710384201", "anglia-english-verbs"),
          product("French", "com.brindle.lumora", "710384202", "lumora-french-verbs"),
          product("German", "com.brindle.rheno", "710384203", "rheno-german-verbs"),
          product("Italian", "com.brindle.tiberia", "710384204", "tiberia-italian-verbs"),
          product("Latin", "com.brindle.palatia", "710384205", "palatia-latin-verbs"),
          product("Portuguese", "com.brindle.tejo", "710384206", "tejo-portuguese-verbs"),
          product("Spanish", "com.brindle.meseta", "710384207", "meseta-spanish-verbs"),
      }
{}

} // namespace lumora::navigation
