// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace lumora::navigation {

/// One application: "bundle" (identifier), "appid" (number in the store),
/// "storedesc" (name in the store's addresses), "name" and "icon" (image).
using Product = std::map<std::string, std::string, std::less<>>;

/// Every application of the maker, this one too.
struct ProductList {
    ProductList();

    std::vector<Product> apps;
};

} // namespace lumora::navigation
