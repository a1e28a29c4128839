// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/output.h"
#include "terminal/session.h"
#include "text/text.h"

#include <QCoreApplication>
#include <QLocale>

#include <csignal>
#include <iostream>

namespace {

using namespace lumora;
using terminal::Arguments;
using terminal::Command;

constexpr int kFailed = 1;
constexpr int kMisused = 2;

/// The toolkit warns of a locale without UTF-8 and works all the same; that does not
/// concern a person who asks for a verb.
void writeToolkitMessage(QtMsgType type, const QMessageLogContext& /*context*/,
                         const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::cerr << qt::toUtf8(message) << '\n';
    }
}

int complain(const std::string& message, int status)
{
    if (!message.empty()) {
        terminal::tell(message, std::cerr);
    }
    return status;
}

std::filesystem::path shareFolder()
{
    return std::filesystem::path{qt::toUtf8(QCoreApplication::applicationDirPath())}.parent_path() /
           "share" / "lumora";
}

platform::Result<void> run(terminal::Session& session, const Arguments& arguments)
{
    const auto output = terminal::standardOutput();
    switch (arguments.command) {
    case Command::Help:
        output.stream << terminal::helpText(arguments.topic);
        return {};
    case Command::Version:
        output.stream
            << "lumora-cli "
            << session.services().bundle.infoValue("CFBundleShortVersionString").value_or("unknown")
            << '\n';
        return {};
    case Command::Backup:
        return terminal::backUp(session, arguments, output);
    case Command::Restore:
        return terminal::restore(session, arguments, output);
    default:
        break;
    }
    session.configure(arguments);
    if (auto opened = session.openDatabase(); !opened) {
        return opened;
    }
    switch (arguments.command) {
    case Command::Conjugate:
        return terminal::conjugate(session, arguments, output);
    case Command::About:
        return terminal::about(session, arguments, output);
    case Command::Lookup:
        return terminal::lookUp(session, arguments, output);
    case Command::Search:
        return terminal::search(session, arguments, output);
    default:
        return terminal::exportDocument(session, arguments, output);
    }
}

} // namespace

int main(int argc, char** argv)
{
    // Whoever reads the output may stop early, also where that signal was off.
    std::signal(SIGPIPE, SIG_DFL);
    std::vector<std::string> words;
    for (int i = 1; i < argc; ++i) {
        words.emplace_back(argv[i]);
    }
    qInstallMessageHandler(writeToolkitMessage);
    const QCoreApplication toolkit{argc, argv};
    const qt::Translations translations{QLocale::system().uiLanguages()};

    const auto arguments = terminal::parseArguments(words);
    if (!arguments) {
        return complain(arguments.error().message, kMisused);
    }
    terminal::Session session{shareFolder()};
    if (const auto done = run(session, *arguments); !done) {
        return complain(done.error().message, kFailed);
    }
    if (!std::cout.flush()) {
        return complain("the output cannot be written", kFailed);
    }
    return 0;
}
