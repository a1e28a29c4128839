// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace lumora::data {
struct Verb;
}
namespace lumora::platform {
class Bundle;
class Device;
class JavaScriptContextFactory;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::exporting {

/// A verb with its conjugations as two documents.
struct VerbRenderings {
    std::string html;
    std::string text;
};

/// Renders a verb through the two Mustache templates among the resources.
class VerbExport {
public:
    /// None: the console says why. An error: a resource that is there could not
    /// be read. A template that makes the script fail is rendered as the word
    /// undefined, and the console has the reason.
    platform::Result<std::optional<VerbRenderings>>
    exportVerb(const data::Verb& verb, const platform::Bundle& bundle,
               const platform::SettingsStore& settings, const platform::Device& device,
               platform::JavaScriptContextFactory& scripts, std::ostream& console) const;
};

} // namespace lumora::exporting
