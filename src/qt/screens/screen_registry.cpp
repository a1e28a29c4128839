// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/screen_registry.h"

#include "navigation/more_apps_table_view_controller.h"
#include "qt/screens/home_screen.h"
#include "qt/screens/options_screen.h"
#include "qt/screens/table_screen.h"
#include "qt/screens/verb_detail_screen.h"

#include <algorithm>
#include <utility>

namespace lumora::qt {

ScreenRegistry::ScreenRegistry() = default;
ScreenRegistry::~ScreenRegistry() = default;

Screen* ScreenRegistry::screenFor(const std::shared_ptr<platform::ViewController>& controller)
{
    const auto found = std::find_if(screens_.begin(), screens_.end(), [&](const Entry& entry) {
        return entry.screen->controller() == controller;
    });
    if (found != screens_.end()) {
        found->retired = false;
        return found->screen.get();
    }
    auto screen = makeScreen(controller);
    connect(screen.get(), &Screen::childrenChanged, this, &ScreenRegistry::childrenChanged);
    // Queued: a page may be in the middle of its destruction.
    connect(screen.get(), &Screen::detached, this, &ScreenRegistry::dropRetired,
            Qt::QueuedConnection);
    return screens_.emplace_back(Entry{std::move(screen)}).screen.get();
}

std::unique_ptr<Screen>
ScreenRegistry::makeScreen(const std::shared_ptr<platform::ViewController>& controller)
{
    if (auto home = std::dynamic_pointer_cast<navigation::HomeViewController>(controller)) {
        return std::make_unique<HomeScreen>(std::move(home), *this);
    }
    if (auto verb = std::dynamic_pointer_cast<detail::VerbDetailTableViewController>(controller)) {
        return std::make_unique<VerbDetailScreen>(std::move(verb));
    }
    if (auto options =
            std::dynamic_pointer_cast<navigation::OptionsTableViewController>(controller)) {
        return std::make_unique<OptionsScreen>(std::move(options));
    }
    if (const auto apps =
            std::dynamic_pointer_cast<navigation::MoreAppsTableViewController>(controller)) {
        return std::make_unique<TableScreen>(apps, QStringLiteral("MoreAppsPage"));
    }
    if (auto table = std::dynamic_pointer_cast<platform::TableViewController>(controller)) {
        return std::make_unique<TableScreen>(table);
    }
    return std::make_unique<Screen>(controller, QStringLiteral("PlainPage"));
}

void ScreenRegistry::retainOnly(
    const std::vector<std::shared_ptr<platform::ViewController>>& controllers)
{
    auto kept = controllers;
    for (const auto& entry : screens_) {
        if (std::find(kept.begin(), kept.end(), entry.screen->controller()) != kept.end()) {
            const auto children = entry.screen->keptChildren();
            kept.insert(kept.end(), children.begin(), children.end());
        }
    }
    for (auto& entry : screens_) {
        entry.retired =
            std::find(kept.begin(), kept.end(), entry.screen->controller()) == kept.end();
    }
    dropRetired();
}

void ScreenRegistry::dropRetired()
{
    // Out of the list first: a screen's end may ask for others.
    std::vector<Entry> dropped;
    for (auto entry = screens_.begin(); entry != screens_.end();) {
        if (entry->retired && !entry->screen->isAttached()) {
            dropped.push_back(std::move(*entry));
            entry = screens_.erase(entry);
        } else {
            ++entry;
        }
    }
}

} // namespace lumora::qt
