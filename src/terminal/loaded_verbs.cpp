// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/loaded_verbs.h"

#include "data/verb_finder.h"
#include "lists/verb_list_table_view_controller.h"
#include "terminal/session.h"

#include <cerrno>
#include <string>

namespace lumora::terminal {

namespace {

std::vector<data::VerbPtr> allVerbs(Session& session)
{
    lists::VerbListTableViewController list{session.services()};
    list.queue = &session.queue();
    list.reloadVerbs();
    std::vector<data::VerbPtr> verbs;
    for (const auto& [letter, section] : list.verbs) {
        verbs.insert(verbs.end(), section.begin(), section.end());
    }
    return verbs;
}

platform::Error unknownVerb(std::string_view name, const std::vector<std::string>& near)
{
    std::string message = "no verb \"" + std::string{name} + "\"";
    for (std::size_t i = 0; i < near.size(); ++i) {
        message += i == 0 ? "; did you mean " : i + 1 == near.size() ? " or " : ", ";
        message += near[i];
    }
    return {near.empty() ? message : message + "?", ENOENT};
}

} // namespace

platform::Result<std::vector<std::unique_ptr<detail::VerbDetailTableViewController>>>
loadedVerbs(Session& session, std::string_view name)
{
    const auto verbs = allVerbs(session);
    if (auto checked = session.check(); !checked) {
        return tl::unexpected(checked.error());
    }
    std::vector<std::unique_ptr<detail::VerbDetailTableViewController>> screens;
    for (const auto& verb : data::verbsNamed(name, verbs)) {
        auto screen = std::make_unique<detail::VerbDetailTableViewController>(session.services());
        screen->queue = &session.queue();
        screen->selectedVerb = verb;
        screen->loadViewIfNeeded();
        screens.push_back(std::move(screen));
    }
    if (auto checked = session.check(); !checked) {
        return tl::unexpected(checked.error());
    }
    if (screens.empty()) {
        return tl::unexpected(unknownVerb(name, data::namesNear(name, verbs)));
    }
    return screens;
}

} // namespace lumora::terminal
