// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/screens/home_screen.h"

#include "qt/desktop/stand_in_portal.h"
#include "support/window_fixture.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>

#include <csignal>

namespace lumora::qt {
namespace {

using support::MessageBus;
using support::StandInPortal;

/// The program as it is installed, in a process and a home of its own.
class Program {
public:
    Program(const QString& busAddress, const QStringList& arguments, bool withDisplay = true)
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
            environment.insert(QString::fromLatin1(variable), toQString(home.path().string()));
        }
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
        environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("leave"));
        if (!withDisplay) {
            for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
                environment.remove(QString::fromLatin1(variable));
            }
        }
        process_.setProcessEnvironment(environment);
        process_.start(QStringLiteral(LUMORA_PROGRAM), arguments);
        EXPECT_TRUE(process_.waitForStarted());
    }
    ~Program()
    {
        process_.kill();
        process_.waitForFinished();
    }

    /// Its exit code; -1 when it does not end or crashes.
    int end()
    {
        const bool ended =
            WindowFixture::until([this] { return process_.state() == QProcess::NotRunning; });
        return ended && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }
    void send(int signal) const { ::kill(static_cast<pid_t>(process_.processId()), signal); }
    QByteArray errors() { return process_.readAllStandardError(); }
    std::string file(const char* name) const
    {
        return support::contentOf(home.path() / "lumora" / name);
    }

    support::TemporaryFolder home;

private:
    QProcess process_;
};

/// A phone's keyboard that remembers what it was asked for.
class StandInKeyboard final : public QDBusVirtualObject {
public:
    explicit StandInKeyboard(QDBusConnection bus)
    {
        bus.registerVirtualObject(QStringLiteral("/sm/puri/OSK0"), this);
        bus.registerService(QStringLiteral("sm.puri.OSK0"));
    }
    QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        EXPECT_EQ(message.member(), QStringLiteral("SetVisible"));
        asked.push_back(message.arguments().value(0).toBool());
        return connection.send(message.createReply());
    }

    std::vector<bool> asked;
};

/// The program in this process, on a bus.
struct RunningProgram : WindowFixture {
    void begin()
    {
        options.desktop.bus = bus.connect();
        options.desktop.hasUrlHandler = [](std::string_view) { return true; };
        instance = std::make_unique<RunningInstance>(options.desktop.bus);
        ASSERT_EQ(instance->start({}), RunningInstance::Role::First);
        ASSERT_NO_FATAL_FAILURE(open(QSize{390, 844}));
        QObject::connect(instance.get(), &RunningInstance::requested, application.get(),
                         [this](const InstanceRequest& request) {
                             tokens.append(request.activationToken);
                             application->serve(request);
                         });
        ASSERT_TRUE(QTest::qWaitForWindowActive(application->window()));
    }

    void TearDown() override { application.reset(); }

    HomeScreen* home() const { return qobject_cast<HomeScreen*>(split().primary().constFirst()); }
    QString topTitle() const
    {
        return qobject_cast<Screen*>(split().primary().constLast())->title();
    }

    MessageBus bus;
    std::unique_ptr<RunningInstance> instance;
    QStringList tokens;
};

TEST_F(RunningProgram, ASecondStartHandsItsRequestOverAndEnds)
{
    begin();
    // Even before the launch is through.
    Program favourites{
        bus.address(),
        {QStringLiteral("--shortcut"), QStringLiteral("com.brindle.shortcut.favourite")}};
    EXPECT_EQ(favourites.end(), 0);
    ASSERT_TRUE(until([&] { return application->isLaunched(); }));
    EXPECT_EQ(home()->selectedTab(), 1);
    EXPECT_FALSE(std::filesystem::exists(favourites.home / "lumora")) << "it wrote nothing";

    Program verb{bus.address(), {QStringLiteral("LUMORA://verb/%C3%A9vanouir")}};
    EXPECT_EQ(verb.end(), 0);
    EXPECT_EQ(topTitle(), QStringLiteral("évanouir (s')"));

    home()->press(QStringLiteral("menu"));
    EXPECT_EQ(application->presenter().modals()->count(), 1);
    Program search{bus.address(),
                   {QStringLiteral("--shortcut"), QStringLiteral("com.brindle.shortcut.search")}};
    EXPECT_EQ(search.end(), 0);
    ASSERT_TRUE(until([&] { return home()->searchFocus(); }));
    EXPECT_TRUE(until([&] { return application->presenter().modals()->count() == 0; }))
        << "the menu gives way";
    pictureAtRest();
    EXPECT_EQ(split().primary().size(), 1);
    QTest::keyClick(application->window(), 'p');
    EXPECT_EQ(home()->searchText(), QStringLiteral("p")) << "the cursor is in the field";

    Program form{bus.address(), {QStringLiteral("--look-up"), QStringLiteral(" vais\n")}};
    EXPECT_EQ(form.end(), 0);
    EXPECT_EQ(topTitle(), QStringLiteral("aller"));
    const auto* field = application->window()->findChild<QQuickItem*>(QStringLiteral("Search"));
    EXPECT_EQ(field->property("text"), QStringLiteral("vais")) << "the way back leads there";

    Program unknown{bus.address(), {QStringLiteral("lumora://verb/alller")}};
    EXPECT_EQ(unknown.end(), 0);
    EXPECT_TRUE(application->presenter().asking());
    application->presenter().answer(0);

    Program plain{bus.address(), {}};
    EXPECT_EQ(plain.end(), 0);
    EXPECT_FALSE(application->presenter().asking());
    EXPECT_EQ(home()->searchText(), QStringLiteral("vais")) << "nothing but the window was wanted";
    EXPECT_EQ(tokens, QStringList(6, QStringLiteral("leave")));
}

TEST_F(RunningProgram, RaisesTheKeyboardOfAPhoneForATextFieldOnly)
{
    StandInKeyboard keyboard{bus.connect()};
    begin();
    ASSERT_TRUE(until([&] { return application->isLaunched(); }));
    EXPECT_TRUE(keyboard.asked.empty()) << "a list needs none";

    QTest::keyClick(application->window(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(until([&] { return keyboard.asked == std::vector{true}; }));
    QTest::keyClick(application->window(), Qt::Key_Down);
    EXPECT_TRUE(until([&] { return keyboard.asked == std::vector{true, false}; }));
}

TEST_F(RunningProgram, LooksAsTheDesktopIsSetAndFollowsIt)
{
    const auto appearance = QStringLiteral("org.freedesktop.appearance");
    const auto interface = QStringLiteral("org.gnome.desktop.interface");
    StandInPortal portal{
        bus,
        {.settings = {
             {appearance, {{"color-scheme", 1U}}},
             {interface,
              {{"text-scaling-factor", 1.5}, {"enable-animations", false}, {"cursor-size", 24}}}}}};
    begin();
    const auto now = [this] {
        const auto& look = application->appearance();
        return Appearance{look.isDark(), look.textScale(), look.isMotionReduced()};
    };
    const auto becomes = [&](const Appearance& expected) {
        return until([&] { return now() == expected; });
    };
    EXPECT_TRUE(becomes({true, 1.5, true}));
    ASSERT_TRUE(until([this] { return application->isLaunched(); }));
    auto& modals = *application->presenter().modals();
    home()->press(QStringLiteral("menu"));
    ASSERT_EQ(modals.count(), 1);
    pictureAtRest();
    modals.modals().back()->close();
    EXPECT_TRUE(until([&] { return modals.count() == 0; })) << "goes without moving";

    portal.changeSetting(appearance, QStringLiteral("color-scheme"), 2U);
    EXPECT_TRUE(becomes({false, 1.5, true}));
    portal.changeSetting(interface, QStringLiteral("text-scaling-factor"), 9.0);
    portal.changeSetting(interface, QStringLiteral("enable-animations"), true);
    EXPECT_TRUE(becomes({false, kLargestTextScale, false}));
    portal.changeSetting(appearance, QStringLiteral("color-scheme"), QStringLiteral("dark"));
    portal.changeSetting(interface, QStringLiteral("text-scaling-factor"), QStringLiteral("big"));
    portal.changeSetting(QStringLiteral("other"), QStringLiteral("color-scheme"), 1U);
    portal.changeSetting(interface, QStringLiteral("enable-animations"), false);
    EXPECT_TRUE(becomes({false, kLargestTextScale, true})) << "what makes no sense changes nothing";
}

TEST_F(RunningProgram, ASupportEmailEndsAsThePortalSays)
{
    begin();
    ASSERT_TRUE(until([this] { return application->isLaunched(); }));
    const StandInPortal portal{
        bus, {.versions = {{QStringLiteral("org.freedesktop.portal.Email"), 3}}, .response = 2}};
    // The program has time to notice the portal.
    QTest::qWait(500);
    dynamic_cast<navigation::HomeViewController&>(*home()->controller()).contactSupport();

    auto& presenter = application->presenter();
    // The same message twice is shown once.
    ASSERT_TRUE(until([&] { return presenter.asking(); }));
    EXPECT_EQ(presenter.questionTitle(), QStringLiteral("export.email.error"));
    presenter.answer(0);
    EXPECT_FALSE(presenter.asking());
    EXPECT_TRUE(portal.requests().at(0).options.value("body").toString().startsWith(
        QStringLiteral("\n\n\n--------------------\nApp: app.title\nDevice: ")));
}

TEST(Program, OpensItsLinkAndEndsInOrderOnASignal)
{
    MessageBus bus;
    const QString addresses[] = {bus.address(), QStringLiteral("unix:path=/nonexistent")};
    const int ends[] = {SIGTERM, SIGHUP};
    for (std::size_t i = 0; i < std::size(ends); ++i) {
        SCOPED_TRACE(i == 0 ? "with a bus" : "without a bus");
        Program program{addresses[i], {QStringLiteral("lumora://verb/aller")}};
        ASSERT_TRUE(WindowFixture::until([&] {
            return program.file("analytics.jsonl").find("select_content") != std::string::npos;
        })) << program.errors().toStdString();
        program.send(ends[i]);
        EXPECT_EQ(program.end(), 0) << program.errors().toStdString();
        EXPECT_NE(program.file("settings.json").find("\"number_of_verbs_viewed\""),
                  std::string::npos)
            << "the last change is written";
    }
}

TEST(Program, AnswersItsArgumentsWithoutADisplay)
{
    struct Case {
        QStringList arguments;
        int status;
        QByteArray error;
    };
    const Case cases[] = {
        {{"--frobnicate"}, 2, "lumora: Unknown option 'frobnicate'.\n"},
        {{"-x"}, 2, "lumora: Unknown option 'x'.\n"},
        {{"--shortcut"}, 2, "lumora: Missing value after '--shortcut'.\n"},
        {{"--help"}, 0, ""},
        {{"-v"}, 0, ""},
        {{"-platform", "offscreen", "--version"}, 0, ""},
        {{}, 1, "lumora: there is no display\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments.join(' ').toStdString());
        Program program{QStringLiteral("unix:path=/nonexistent"), c.arguments, false};
        EXPECT_EQ(program.end(), c.status);
        EXPECT_EQ(program.errors(), c.error);
    }
}

} // namespace
} // namespace lumora::qt
