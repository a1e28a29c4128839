// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/translations.h"
#include "session/random_session.h"
#include "support/temporary_folder.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QtTest/QTest>

#include <algorithm>
#include <iostream>
#include <random>
#include <utility>

namespace {

using namespace lumora;

constexpr std::uint64_t kActionsBetweenWaysHome = 100;
/// The home screen, its three lists and the results of its search.
constexpr std::size_t kMostScreensAtHome = 5;
/// For one action and all that follows from it; sanitizers and a busy machine
/// included.
constexpr qint64 kLongestMilliseconds = 10'000;

/// What the program's own QML or the toolkit complained about since last asked.
class Complaints {
public:
    Complaints()
    {
        texts().clear();
        qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& /*where*/, const QString& text) {
                // That this is no real display, that there is no sound, and what
                // the toolkit says of itself when a page goes while its lists
                // and handlers are at work, or when a frame comes so late that
                // its clock is stopped twice.
                const bool known = text.startsWith(QLatin1String("This plugin does not")) ||
                                   text.startsWith(QLatin1String("PulseAudioService")) ||
                                   text.startsWith(QLatin1String("DelegateModel::cancel")) ||
                                   text.startsWith(QLatin1String("QUnifiedTimer::stop")) ||
                                   text.startsWith(QLatin1String("QObject::disconnect"));
                if (type != QtDebugMsg && !known) {
                    texts().append(text);
                }
            });
    }
    ~Complaints() { qInstallMessageHandler(nullptr); }
    Complaints(const Complaints&) = delete;
    Complaints& operator=(const Complaints&) = delete;

    static std::string take() { return std::exchange(texts(), {}).join('\n').toStdString(); }

private:
    /// The toolkit's handler is a plain function.
    static QStringList& texts()
    {
        static QStringList texts;
        return texts;
    }
};

/// Files to import, good and bad, and what is none of ours.
void makeFiles(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder / "folder");
    support::writeContent(folder / "backup.json",
                          R"({"lumora": 1, "favourites": [{"french": "aller"}]})");
    support::writeContent(folder / "broken.json", "{\"favourites\": [1, ");
    support::writeContent(folder / "other.json", "[]");
    support::writeContent(folder / "empty", "");
}

qt::ApplicationOptions optionsIn(const std::filesystem::path& home)
{
    qt::ApplicationOptions options;
    options.folders = {home / "data", home / "config", home / "state"};
    options.shareFolder = LUMORA_SHARE_DIR;
    options.launchArguments = {"ui_test"};
    return options;
}

int run(std::uint64_t seed, std::uint64_t actions, bool verbose)
{
    const support::TemporaryFolder home;
    qt::Application application{optionsIn(home.path())};
    if (!application.show()) {
        std::cerr << "The window does not show.\n";
        return 1;
    }
    application.launch();
    application.window()->requestActivate();
    if (!QTest::qWaitForWindowActive(application.window())) {
        std::cerr << "The window gets no keyboard.\n";
        return 1;
    }
    session::RandomSession session{application, seed};
    const Complaints complaints;
    for (std::uint64_t number = 1; number <= actions; ++number) {
        QElapsedTimer clock;
        clock.start();
        const auto done = session.act(number);
        if (verbose) {
            std::cerr << number << ": " << done << std::endl;
        }
        std::string fault = Complaints::take();
        if (fault.empty() && clock.elapsed() > kLongestMilliseconds) {
            fault = "it took " + std::to_string(clock.elapsed()) + " ms";
        }
        if (fault.empty() && number % kActionsBetweenWaysHome == 0) {
            fault = session.goHome();
            fault += Complaints::take();
            const auto screens = application.splitScreen().screenCount();
            if (fault.empty() && screens > kMostScreensAtHome) {
                fault = std::to_string(screens - kMostScreensAtHome) + " screens are left over";
            }
        }
        if (!fault.empty()) {
            std::cerr << "After action " << number << " (" << done << ") of seed " << seed << ":\n"
                      << fault << std::endl;
            return 1;
        }
    }
    std::cerr << actions << " actions: no complaint, and always a way home.\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const support::TemporaryFolder home;
    qputenv("HOME", home.path().c_str());
    makeFiles(home.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    // Without sound, and without printing on real paper.
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    qputenv("CUPS_SERVER", "/nonexistent/cups");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication toolkit{argc, argv};
    QCommandLineParser arguments;
    arguments.addHelpOption();
    arguments.addOptions({{"seed", "Repeats a session.", "N", "0"},
                          {"actions", "How many.", "N", "10000"},
                          {"verbose", "Names every action."}});
    arguments.process(toolkit);
    const qt::Translations texts{{QStringLiteral("en")}};
    const auto actions = arguments.value("actions").toULongLong();
    if (actions == 0) {
        std::cerr << "random-session: --actions wants a whole number\n";
        return 2;
    }
    const auto seed =
        arguments.isSet("seed") ? arguments.value("seed").toULongLong() : std::random_device{}();
    std::cerr << "Seed " << seed << std::endl;
    qt::registerInterface();
    return run(seed, actions, arguments.isSet("verbose"));
}
