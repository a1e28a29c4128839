// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/verb_export.h"

#include "export/export_data.h"
#include "platform/files/atomic_file.h"
#include "platform/machine/bundle.h"
#include "platform/machine/java_script_context.h"
#include "text/text.h"

#include <cerrno>
#include <filesystem>
#include <ostream>

namespace lumora::exporting {

namespace {

platform::Result<std::string> readText(const std::filesystem::path& file)
{
    auto text = platform::readFile(file);
    if (text && text::wellFormed(*text) != *text) {
        return tl::unexpected(platform::Error{file.string() + " is not UTF-8 text", EILSEQ});
    }
    return text;
}

/// The template stands in the script as it is, so it may hold neither a
/// backtick nor "${".
std::string renderingScript(const std::string& mustacheTemplate, const std::string& json)
{
    return "Mustache.render(`" + mustacheTemplate + "`, " + json + ");";
}

} // namespace

// A member of a class without state, so that callers can keep and pass it.
// NOLINTNEXTLINE(readability-convert-member-functions-to-static)
platform::Result<std::optional<VerbRenderings>>
VerbExport::exportVerb(const data::Verb& verb, const platform::Bundle& bundle,
                       const platform::SettingsStore& settings, const platform::Device& device,
                       platform::JavaScriptContextFactory& scripts, std::ostream& console) const
{
    const auto libraryFile = bundle.pathForResource("mustache.min", "js");
    const auto htmlFile = bundle.pathForResource("export_html", "mustache");
    const auto textFile = bundle.pathForResource("export_txt", "mustache");
    if (!libraryFile || !htmlFile || !textFile) {
        console << "Unable to find mustache JS file" << std::endl;
        return std::nullopt;
    }
    const auto library = readText(*libraryFile);
    if (!library) {
        return tl::unexpected(library.error());
    }
    const auto htmlTemplate = readText(*htmlFile);
    if (!htmlTemplate) {
        return tl::unexpected(htmlTemplate.error());
    }
    const auto textTemplate = readText(*textFile);
    if (!textTemplate) {
        return tl::unexpected(textTemplate.error());
    }
    const auto json = exportData(verb, bundle, settings, device);
    if (!json) {
        console << "Unable to create json string" << std::endl;
        return std::nullopt;
    }

    const auto context = scripts.makeJavaScriptContext();
    context->setExceptionHandler(
        [&console](const std::string& thrown) { console << "JS Error: " << thrown << std::endl; });
    context->evaluateScript(*library);
    VerbRenderings renderings;
    renderings.html = context->evaluateScript(renderingScript(*htmlTemplate, *json));
    renderings.text = context->evaluateScript(renderingScript(*textTemplate, *json));
    return renderings;
}

} // namespace lumora::exporting
