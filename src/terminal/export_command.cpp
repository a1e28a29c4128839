// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/homographs.h"
#include "export/verb_export.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <cerrno>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace lumora::terminal {

namespace {

/// The commonest first, and told apart.
platform::Result<void> putInOrder(Session& session, std::vector<data::VerbPtr>& verbs)
{
    platform::Result<void> done;
    session.queue().inDatabase([&](platform::Database& database) {
        done = data::putCommonestFirst(database, verbs).and_then([&] {
            return data::distinguishHomographs(database, verbs);
        });
    });
    return done;
}

/// "there are 2: 1 is repartir (être), 2 is repartir (avoir)".
std::string numbered(const std::vector<data::VerbPtr>& verbs)
{
    if (verbs.size() == 1) {
        return "there is only " + verbs.front()->french;
    }
    auto text = "there are " + std::to_string(verbs.size()) + ':';
    for (std::size_t i = 0; i < verbs.size(); ++i) {
        const auto& verb = *verbs[i];
        text += (i == 0 ? " " : ", ") + std::to_string(i + 1) + " is " + verb.french;
        text += verb.distinction.empty() ? "" : " (" + verb.distinction + ")";
    }
    return text;
}

/// A document is about one verb: that of the number, or the commonest, with a
/// line about the others.
platform::Result<data::VerbPtr> chosen(Session& session, std::vector<data::VerbPtr> verbs,
                                       const Arguments& arguments, const Output& output)
{
    if (verbs.size() > 1) {
        if (auto ordered = putInOrder(session, verbs); !ordered) {
            return tl::unexpected(ordered.error());
        }
        if (!arguments.number) {
            tell(numbered(verbs) + "; this is 1, --number chooses another", output.errors);
        }
    }
    const auto number = arguments.number.value_or(1);
    if (number > verbs.size()) {
        return tl::unexpected(platform::Error{
            "no verb is number " + std::to_string(number) + ", " + numbered(verbs), ENOENT});
    }
    return verbs[number - 1];
}

} // namespace

platform::Result<void> exportDocument(Session& session, const Arguments& arguments,
                                      const Output& output)
{
    auto verbs = VerbDirectory::read(session).and_then(
        [&](VerbDirectory directory) { return directory.named(arguments.text); });
    if (!verbs) {
        return tl::unexpected(verbs.error());
    }
    const auto verb = chosen(session, std::move(*verbs), arguments, output);
    if (!verb) {
        return tl::unexpected(verb.error());
    }
    if (const auto loaded = loadedScreen(session, *verb); !loaded) {
        return tl::unexpected(loaded.error());
    }
    const auto& services = session.services();
    const auto renderings =
        exporting::VerbExport{}.exportVerb(**verb, services.bundle, services.settings,
                                           services.device, services.scripts, services.console);
    if (!renderings) {
        return tl::unexpected(renderings.error());
    }
    // A template may have failed and left only the word undefined.
    if (auto checked = session.check(); !checked) {
        return checked;
    }
    const auto& pair = *renderings;
    if (!pair) {
        return tl::unexpected(platform::Error{"nothing to export", ENODATA});
    }
    output.stream << (arguments.format == Format::Html ? pair->html : pair->text);
    return {};
}

} // namespace lumora::terminal
