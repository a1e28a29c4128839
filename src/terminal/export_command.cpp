// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/verb_export.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/loaded_verbs.h"
#include "terminal/output.h"
#include "terminal/session.h"

#include <cerrno>
#include <string>

namespace lumora::terminal {

platform::Result<void> exportDocument(Session& session, const Arguments& arguments,
                                      const Output& output)
{
    const auto verbs = VerbDirectory::read(session).and_then(
        [&](const VerbDirectory& directory) { return directory.named(arguments.text); });
    if (!verbs) {
        return tl::unexpected(verbs.error());
    }
    std::string documents;
    for (const auto& verb : *verbs) {
        if (const auto loaded = loadedScreen(session, verb); !loaded) {
            return tl::unexpected(loaded.error());
        }
        const auto renderings = exporting::VerbExport{}.exportVerb(*verb, session.services());
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
        documents += documents.empty() ? "" : "\n";
        documents += arguments.format == Format::Html ? pair->html : pair->text;
    }
    output.stream << documents;
    return {};
}

} // namespace lumora::terminal
