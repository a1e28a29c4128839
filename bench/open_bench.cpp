// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "database_world.h"
#include "detail/verb_detail_table_view_controller.h"
#include "support/temporary_folder.h"
#include "window.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace lumora::bench {
namespace {

using qt::WindowDriver;

constexpr const char* kFormsStatement =
    "SELECT _id, pronoun, verb, type, conj_order as pid FROM conjugation WHERE verbid = ? AND "
    "display=1 ORDER BY conj_order";

void bareFormsLoop(sqlite3* connection, std::int64_t verb)
{
    struct BareForm {
        sqlite3_int64 order = 0;
        std::string texts[3];
    };
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(connection, kFormsStatement, -1, &statement, nullptr);
    sqlite3_bind_int64(statement, 1, verb);
    std::vector<std::unique_ptr<BareForm>> forms;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        auto& form = *forms.emplace_back(std::make_unique<BareForm>());
        for (int column = 0; column < 3; ++column) {
            form.texts[column] =
                reinterpret_cast<const char*>(sqlite3_column_text(statement, column + 1));
        }
        form.order = sqlite3_column_int64(statement, 4);
    }
    sqlite3_finalize(statement);
    use(forms);
}

/// The same slide as ours, with nothing on the page that comes.
constexpr const char* kEmptyPages = R"(
import QtQuick
import QtQuick.Controls.Basic
import Lumora
ApplicationWindow {
    id: root
    property bool replacing: false
    visible: true
    StackView {
        id: stack
        objectName: "stack"
        anchors.fill: parent
        initialItem: Rectangle {
            color: Theme.background
            MouseArea {
                anchors.fill: parent
                onClicked: {
                    if (root.replacing)
                        other.replace(empty, {}, StackView.Immediate);
                    else
                        stack.push(empty);
                }
            }
        }
        pushEnter: Transition {
            NumberAnimation { property: "x"; from: stack.width; to: 0; duration: Theme.quick; easing.type: Easing.OutCubic }
        }
        pushExit: Transition {
            NumberAnimation { property: "x"; from: 0; to: -stack.width / 4; duration: Theme.quick; easing.type: Easing.OutCubic }
        }
    }
    StackView {
        id: other
        visible: root.replacing
        x: 360
        width: parent.width - x
        height: parent.height
        initialItem: Rectangle {}
    }
    Component {
        id: empty
        Rectangle { color: Theme.background }
    }
    function back() { stack.pop(null, StackView.Immediate) }
}
)";

/// From the release of a finger to the frame with which the pane stands still.
double tapUntilDrawn(QQuickWindow& window, const QPointF& point, const QObject& pane)
{
    const WindowDriver driver{window};
    driver.press(point);
    QCoreApplication::processEvents();
    const Stopwatch watch;
    driver.release(point);
    do {
        if (!driver.waitForFrame()) {
            throw std::runtime_error("the window draws nothing");
        }
    } while (pane.property("busy").toBool());
    return watch.milliseconds();
}

constexpr int kRounds = 30;
constexpr int kSettleMilliseconds = 120;

Samples pushEmptyPages(const QSize& size, bool replacing)
{
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.setInitialProperties({{QStringLiteral("width"), size.width()},
                                 {QStringLiteral("height"), size.height()},
                                 {QStringLiteral("replacing"), replacing}});
    engine.loadData(kEmptyPages);
    auto* window = rootWindow(engine);
    if (window == nullptr) {
        throw std::runtime_error("the window with empty pages could not be built");
    }
    const WindowDriver driver{*window};
    const auto* stack = driver.find(QStringLiteral("stack"));
    Samples samples;
    for (int round = -2; round < kRounds; ++round) {
        WindowDriver::wait(kSettleMilliseconds);
        const auto time = tapUntilDrawn(*window, {100, 300}, *stack);
        if (round >= 0) {
            samples.add(time);
        }
        QMetaObject::invokeMethod(window, "back");
    }
    return samples;
}

/// Taps one row after another, all over the list.
Samples openVerbs(const std::filesystem::path& world, const QSize& size)
{
    qt::Application application{applicationOptions(world, size)};
    if (!application.show()) {
        throw std::runtime_error("the window could not be built");
    }
    application.launch();
    auto& window = *application.window();
    const WindowDriver driver{window};
    WindowDriver::wait(kSettleMilliseconds);
    const bool wide = !application.splitScreen().collapsed();
    const auto* pane =
        driver.find(wide ? QStringLiteral("secondaryPane") : QStringLiteral("primaryPane"));
    const auto firstCells = driver.cells();
    if (pane == nullptr || firstCells.empty()) {
        throw std::runtime_error("there is no list");
    }
    auto* list = WindowDriver::listOf(firstCells.front());
    const auto length = list->property("contentHeight").toDouble() - list->height();
    Samples samples;
    for (int round = -2; round < kRounds; ++round) {
        list->setProperty("contentY", length * (round + 2) / (kRounds + 2));
        WindowDriver::wait(kSettleMilliseconds);
        const auto cells = driver.cells();
        auto* cell = cells.at(cells.size() / 2);
        const auto time = tapUntilDrawn(window, WindowDriver::middleOf(*cell), *pane);
        const auto screens =
            wide ? application.splitScreen().secondary() : application.splitScreen().primary();
        const auto* shown = screens.isEmpty() ? nullptr : qobject_cast<qt::Screen*>(screens.last());
        if (shown == nullptr || shown->title() != cell->objectName() ||
            driver.find(QStringLiteral("mood0")) == nullptr) {
            throw std::runtime_error("a tap did not open " + cell->objectName().toStdString());
        }
        if (round >= 0) {
            samples.add(time);
        }
        application.splitScreen().back();
        WindowDriver::waitUntil([&] { return !pane->property("busy").toBool(); });
    }
    return samples;
}

/// Frames of a verb's tenses that go by, and of the same window at rest.
Figure scrollVerb(const std::filesystem::path& world)
{
    constexpr double kStep = 40;
    qt::Application application{applicationOptions(world, {1024, 768})};
    if (!application.show()) {
        throw std::runtime_error("the window could not be built");
    }
    application.launch();
    auto& window = *application.window();
    const WindowDriver driver{window};
    WindowDriver::wait(kSettleMilliseconds);
    const auto cell = WindowDriver::middleOf(*driver.cells().at(1));
    driver.press(cell);
    driver.release(cell);
    driver.settle();
    auto* tenses = driver.find(QStringLiteral("tenses"));
    if (tenses == nullptr) {
        throw std::runtime_error("there are no tenses to scroll");
    }
    const auto length = tenses->property("contentHeight").toDouble() - tenses->height();
    const auto top = tenses->property("originY").toDouble();
    const auto frame = [&] {
        window.update();
        const Stopwatch watch;
        driver.waitForFrame();
        return watch.milliseconds();
    };
    Figure figure{"frame of a verb that scrolls", {}, "frame at rest", {}, {}, {}};
    const int steps = static_cast<int>(8 * length / kStep);
    for (int step = 0; step < steps; ++step) {
        // Down and up again.
        const auto place = std::fmod(step * kStep, 2 * length);
        tenses->setProperty("contentY", top + std::min(place, 2 * length - place));
        figure.own.add(frame());
        figure.referenceSamples.add(frame());
    }
    // Measured: 1.7 to 1.8, 95 % 1.8 to 2.0.
    holdAgainstReference(figure, {3, 4});
    return figure;
}

} // namespace

Figure formsFigure(const std::filesystem::path& database, int verbs)
{
    DatabaseWorld world{database};
    const auto ids = world.verbIds();
    sqlite3* connection = nullptr;
    sqlite3_open(database.c_str(), &connection);
    Figure figure{"forms of a verb, grouped", {}, "bare SQLite loop", {}, {}, {}};
    for (int verb = 0; verb < verbs; ++verb) {
        const auto id = ids[static_cast<std::size_t>(verb + 1) * 97 % ids.size()];
        detail::VerbDetailTableViewController detail{world.services()};
        detail.queue = &world.queue();
        detail.selectedVerb = world.world().verb(id);
        figure.own.add(millisecondsOf([&] { detail.loadViewIfNeeded(); }));
        figure.referenceSamples.add(millisecondsOf([&] { bareFormsLoop(connection, id); }));
    }
    sqlite3_close(connection);
    return figure;
}

void measureOpening(Report& report, const std::filesystem::path& database)
{
    auto forms = formsFigure(database, 1000);
    // Measured: 1.5 to 1.6, 95 % 1.5 to 2.0.
    holdAgainstReference(forms, {2, 3});
    report.add(forms);
    const support::TemporaryFolder world;
    // A frame, 16 ms, beyond an empty page, which slides for 196 ms on a phone and is
    // there after 6 ms beside the list.
    struct Window {
        const char* what;
        QSize size;
        Limits limits;
    };
    for (const auto& [what, size, limits] :
         {Window{"tap to drawn grid, phone", {390, 844}, {1.1, 1.1}},
          Window{"tap to drawn grid, tablet", {1024, 768}, {3.5, 3.5}}}) {
        const bool wide = size.width() > size.height();
        Figure figure{what,
                      openVerbs(world.path(), size),
                      "push of an empty page",
                      pushEmptyPages(size, wide),
                      {},
                      {}};
        holdAgainstReference(figure, limits);
        report.add(figure);
    }
    report.add(scrollVerb(world.path()));
}

} // namespace lumora::bench
