// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/command_line.h"

#include "app/deep_link.h"
#include "qt/base/text_conversion.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>
#include <iterator>

namespace lumora::qt {

namespace {

constexpr const char* kHelp = R"help(Usage: lumora [OPTIONS] [LINK]

The conjugations of French verbs. Where Lumora runs already, its window comes
to the front and does what is asked for.

  LINK               open the verb of a link such as lumora://verb/aller
  --look-up TEXT     open the verb or the form that the text means
  --shortcut TYPE    open what a shortcut names: com.brindle.shortcut.search,
                     .favourite, .history or .list
  --service          answer the desktop's search, without a window until one is
                     asked for
  --tour FOLDER      write a picture of every screen into FOLDER
  -h, --help         print this
  -v, --version      print the version
)help";

// The toolkit's own, which takes them out when it starts.
constexpr std::array kToolkitOptions{"display",         "platform",    "platformpluginpath",
                                     "platformtheme",   "plugin",      "qmljsdebugger",
                                     "qwindowgeometry", "qwindowicon", "qwindowtitle",
                                     "session",         "style"};

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}};
    const QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}};
    const QCommandLineOption tour{QStringLiteral("tour"), {}, QStringLiteral("folder")};
    const QCommandLineOption shortcut{QStringLiteral("shortcut"), {}, QStringLiteral("type")};
    const QCommandLineOption lookUp{QStringLiteral("look-up"), {}, QStringLiteral("text")};
    const QCommandLineOption service{QStringLiteral("service")};
    QCommandLineParser parser;
    parser.addOptions({help, version, tour, shortcut, lookUp, service});
    // The toolkit writes its own with one dash.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const char* name : kToolkitOptions) {
        parser.addOption({QString::fromLatin1(name), {}, QStringLiteral("value")});
    }

    CommandLine read;
    if (!parser.parse(arguments)) {
        read.error = parser.errorText();
        return read;
    }
    const auto valueOf = [&](const QCommandLineOption& option) {
        return parser.isSet(option) ? std::optional{parser.value(option)} : std::nullopt;
    };
    read.help = parser.isSet(help);
    read.version = parser.isSet(version);
    read.choosesPlatform =
        parser.isSet(QStringLiteral("platform")) || parser.isSet(QStringLiteral("display"));
    read.tourFolder = valueOf(tour);
    read.shortcut = valueOf(shortcut);
    read.lookUp = valueOf(lookUp);
    read.service = parser.isSet(service);
    const auto rest = parser.positionalArguments();
    std::partition_copy(rest.begin(), rest.end(), std::back_inserter(read.links),
                        std::back_inserter(read.launchArguments),
                        [](const QString& text) { return app::isDeepLink(toUtf8(text)); });
    return read;
}

const char* CommandLine::helpText()
{
    return kHelp;
}

} // namespace lumora::qt
