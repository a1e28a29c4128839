// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/more_apps_table_view_controller.h"

#include "build_settings.h"
#include "platform/machine/analytics.h"
#include "platform/machine/bundle.h"
#include "platform/machine/device.h"
#include "platform/machine/url_opener.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lumora::navigation {

namespace {

/// Empty when the entry lacks the value.
std::string value(const Product& product, std::string_view key)
{
    const auto found = product.find(key);
    return found == product.end() ? std::string{} : found->second;
}

/// The user's country as the store writes it; those without one get the
/// store's first.
std::string storeCountry(const platform::Device& device)
{
    auto country = device.regionCode();
    std::transform(country.begin(), country.end(), country.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return country.empty() ? "us" : country;
}

std::string storeAddress(const Product& product, const platform::Device& device)
{
    std::string address{build::kStoreUrl};
    address += storeCountry(device) + "/app/" + value(product, "storedesc") + "/id" +
               value(product, "appid");
    address += "?mt=8&uo=4&at=";
    return address.append(build::kStoreAffiliateToken);
}

} // namespace

void MoreAppsTableViewController::viewDidLoad()
{
    auto item = navigationItem();
    item.title = localizedString(services().bundle, "moreapps");
    setNavigationItem(std::move(item));
    addDoneButton([this] { close(); });

    const auto running = services().bundle.infoValue("CFBundleIdentifier");
    const ProductList products;
    std::copy_if(products.apps.begin(), products.apps.end(), std::back_inserter(otherApps),
                 [&](const Product& product) { return value(product, "bundle") != running; });
}

void MoreAppsTableViewController::close()
{
    dismiss(nullptr);
}

int MoreAppsTableViewController::numberOfSections()
{
    return 1;
}

int MoreAppsTableViewController::numberOfRowsInSection(int section)
{
    return section == 0 ? static_cast<int>(otherApps.size()) : 0;
}

platform::TableCell MoreAppsTableViewController::cellForRow(platform::IndexPath path)
{
    const auto& product = otherApps.at(static_cast<std::size_t>(path.row));
    platform::TableCell cell;
    cell.reuseIdentifier = "Cell";
    cell.image = value(product, "icon");
    cell.text = value(product, "name");
    return cell;
}

void MoreAppsTableViewController::didSelectRow(platform::IndexPath path)
{
    tableView().deselectRow(path);
    const auto& product = otherApps.at(static_cast<std::size_t>(path.row));
    services().analytics.logEvent("more_apps", {{"select", value(product, "storedesc")}});
    if (product.contains("appid") && product.contains("storedesc")) {
        services().urlOpener.open(storeAddress(product, services().device));
    }
}

} // namespace lumora::navigation
