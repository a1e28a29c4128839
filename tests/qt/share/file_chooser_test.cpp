// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/qt_file_chooser.h"

#include "qt/desktop/stand_in_portal.h"
#include "support/environment_variable.h"
#include "support/fake_presenter.h"
#include "support/temporary_folder.h"

#include <QDBusArgument>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using platform::FileQuestion;

constexpr int kPatience = 5000;
const QString kFileChooser = QStringLiteral("org.freedesktop.portal.FileChooser");

TEST(QtFileChooser, AsksTheDesktopAndInTheWindowWhereThatFails)
{
    struct Case {
        FileQuestion::Purpose purpose;
        uint response;
        const char* method;
        bool chosen;
        bool inTheWindow;
    };
    const Case cases[] = {
        {FileQuestion::Purpose::Save, 0, "SaveFile", true, false},
        {FileQuestion::Purpose::Open, 0, "OpenFile", true, false},
        {FileQuestion::Purpose::Open, 1, "OpenFile", false, false},
        {FileQuestion::Purpose::Save, 2, "SaveFile", false, true},
    };
    const support::TemporaryFolder home;
    const support::EnvironmentVariable homeOfTest{"HOME", home.path()};
    support::FakePresenter presenter;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.response);
        support::MessageBus bus;
        const support::StandInPortal portal{
            bus,
            {.versions = {{kFileChooser, 3}},
             .response = c.response,
             .results = {{"uris", QStringList{"file:///tmp/l%27%C3%A9t%C3%A9.json"}}}}};
        QtFileChooser chooser{presenter, {bus.connect(), {}}};
        std::vector<std::filesystem::path> chosen;
        chooser.choose({c.purpose, "Title", "Kind", "json", "lumora"},
                       [&](const auto& /*file*/) { FAIL() << "the question was replaced"; });
        chooser.choose({c.purpose, "Title", "Kind", "json", "lumora"},
                       [&](const auto& file) { chosen.push_back(file); });
        EXPECT_TRUE(chosen.empty()) << "not from within the call";

        EXPECT_EQ(QTest::qWaitFor([&] { return !chosen.empty(); }, c.chosen ? kPatience : 500),
                  c.chosen);
        EXPECT_EQ(chooser.asking(), c.inTheWindow);
        if (c.chosen) {
            EXPECT_EQ(chosen[0], "/tmp/l'\u00e9t\u00e9.json");
        }
        const auto requests = portal.requests();
        ASSERT_EQ(requests.size(), 2U);
        EXPECT_EQ(requests[1].member, c.method);
        EXPECT_EQ(requests[1].arguments, (QVariantList{"", "Title"}));
        const auto& options = requests[1].options;
        EXPECT_EQ(options["current_folder"].toByteArray(), QByteArray{home.path().c_str()} + '\0');
        EXPECT_EQ(options.value("current_name"),
                  c.purpose == FileQuestion::Purpose::Save ? QVariant{"lumora.json"} : QVariant{});
        EXPECT_EQ(options["filters"].value<QDBusArgument>().currentSignature(),
                  c.purpose == FileQuestion::Purpose::Open ? "a(sa(us))" : "");
    }
}

} // namespace
} // namespace lumora::qt
