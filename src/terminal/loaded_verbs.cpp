// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/loaded_verbs.h"

#include "lists/verb_list_table_view_controller.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string>

namespace lumora::terminal {

namespace {

platform::Error unknownVerb(std::string_view name, const std::vector<std::string>& near)
{
    auto message = "no verb " + inQuotes(name);
    for (std::size_t i = 0; i < near.size(); ++i) {
        message += i == 0 ? "; did you mean " : i + 1 == near.size() ? " or " : ", ";
        message += near[i];
    }
    return {near.empty() ? message : message + "?", ENOENT};
}

} // namespace

platform::Result<VerbDirectory> VerbDirectory::read(Session& session)
{
    lists::VerbListTableViewController list{session.services()};
    list.queue = &session.queue();
    list.reloadVerbs();
    if (auto checked = session.check(); !checked) {
        return tl::unexpected(checked.error());
    }
    VerbDirectory directory{session};
    for (const auto& [letter, section] : list.verbs) {
        directory.verbs_.insert(directory.verbs_.end(), section.begin(), section.end());
    }
    return directory;
}

platform::Result<std::vector<data::VerbPtr>> VerbDirectory::named(std::string_view name)
{
    const auto ids = reader_.verbsNamed(name);
    if (!ids) {
        return tl::unexpected(ids.error());
    }
    std::vector<data::VerbPtr> found;
    std::copy_if(verbs_.begin(), verbs_.end(), std::back_inserter(found),
                 [&](const data::VerbPtr& verb) {
                     return std::find(ids->begin(), ids->end(), verb->id) != ids->end();
                 });
    if (found.empty()) {
        return tl::unexpected(
            unknownVerb(name, reader_.namesNear(name).value_or(std::vector<std::string>{})));
    }
    return found;
}

platform::Result<std::unique_ptr<Screen>> loadedScreen(Session& session, const data::VerbPtr& verb)
{
    auto screen = std::make_unique<Screen>(session.services());
    screen->queue = &session.queue();
    screen->selectedVerb = verb;
    screen->loadViewIfNeeded();
    if (auto checked = session.check(); !checked) {
        return tl::unexpected(checked.error());
    }
    return screen;
}

} // namespace lumora::terminal
