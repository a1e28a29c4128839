// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "session/random_session.h"

#include "app/app_delegate.h"
#include "qt/base/text_conversion.h"
#include "qt/share/file_location.h"
#include "qt/tour/window_driver.h"

#include <QDir>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QtTest/QTest>
#include <QWheelEvent>

#include <algorithm>
#include <numeric>
#include <sstream>
#include <utility>

namespace lumora::session {

using qt::WindowDriver;

namespace {

constexpr QSize kPhone{390, 844};
/// Shorter than a person's, so that many fit into a session.
constexpr int kHoldMilliseconds = 60;
constexpr int kUsualHoldMilliseconds = 800;
constexpr int kPatience = 5000;
constexpr int kPatienceWithTap = 1500;
/// A question over a sheet over a verb over a search: more is no way out.
constexpr int kMostEscapes = 15;

void collectControls(QQuickItem* parent, const QRectF& window, std::vector<QQuickItem*>& found)
{
    for (auto* item : parent->childItems()) {
        if (!item->isVisible() || !item->isEnabled()) {
            continue;
        }
        const auto& objects = item->children();
        const bool handlesTouch =
            item->acceptedMouseButtons() != Qt::NoButton || item->acceptTouchEvents() ||
            std::any_of(objects.begin(), objects.end(), [](const QObject* object) {
                return object->inherits("QQuickPointerHandler");
            });
        if (handlesTouch && window.contains(WindowDriver::middleOf(*item))) {
            found.push_back(item);
        }
        collectControls(item, window, found);
    }
}

std::string nameOf(const QPointF& point)
{
    return std::to_string(static_cast<int>(point.x())) + "," +
           std::to_string(static_cast<int>(point.y()));
}

} // namespace

RandomSession::RandomSession(qt::Application& application, std::uint64_t seed)
    : application_{application}, seed_{seed}, finger_{QTest::createTouchDevice()}
{}

std::string RandomSession::act(std::uint64_t number)
{
    static const std::vector<Action> kActions{{36, &RandomSession::tapControl},
                                              {3, &RandomSession::tapAnywhere},
                                              {2, &RandomSession::holdControl},
                                              {3, &RandomSession::askForMenu},
                                              {12, &RandomSession::drag},
                                              {2, &RandomSession::pullFromEdge},
                                              {2, &RandomSession::turnWheel},
                                              {6, &RandomSession::type},
                                              {20, &RandomSession::pressKey},
                                              {5, &RandomSession::pressShortcut},
                                              {3, &RandomSession::resize},
                                              {3, &RandomSession::requestFromOutside},
                                              {1, &RandomSession::changeAppearance},
                                              {1, &RandomSession::leaveForBackground}};
    static const auto kTotal =
        std::accumulate(kActions.begin(), kActions.end(), 0U,
                        [](auto sum, const auto& action) { return sum + action.weight; });
    // Of its own: what a slower machine shows a moment later changes what this
    // action meets, not which ones follow.
    std::seed_seq numbers{seed_, number};
    random_.seed(numbers);

    stayInOurFolders();
    QGuiApplication::styleHints()->setMousePressAndHoldInterval(kHoldMilliseconds);
    auto draw = below(kTotal);
    const auto* action = kActions.data();
    while (draw >= action->weight) {
        draw -= action->weight;
        ++action;
    }
    auto done = (this->*action->perform)();
    // Mostly in the middle of what moves, sometimes after it.
    WindowDriver::wait(below(20) == 0 ? 250 : static_cast<int>(below(16)));
    return done;
}

std::string RandomSession::tapControl()
{
    const auto all = controls();
    if (all.empty()) {
        return tapAnywhere();
    }
    const auto* const control = oneOf(all);
    const auto name = control->objectName().toStdString();
    const auto* const kind = control->metaObject()->className();
    const auto point = WindowDriver::middleOf(*control);
    tap(point, Qt::LeftButton);
    return "tap " + name + " (" + kind + ") at " + nameOf(point);
}

std::string RandomSession::tapAnywhere()
{
    const auto point = anyPoint();
    tap(point, Qt::LeftButton);
    return "tap at " + nameOf(point);
}

std::string RandomSession::holdControl()
{
    const auto all = controls();
    const auto point = all.empty() ? anyPoint() : WindowDriver::middleOf(*oneOf(all));
    QTest::touchEvent(application_.window(), finger_).press(0, point.toPoint());
    WindowDriver::wait(3 * kHoldMilliseconds);
    QTest::touchEvent(application_.window(), finger_).release(0, point.toPoint());
    return "hold at " + nameOf(point);
}

std::string RandomSession::askForMenu()
{
    const auto all = controls();
    const auto point = all.empty() ? anyPoint() : WindowDriver::middleOf(*oneOf(all));
    tap(point, Qt::RightButton);
    return "right button at " + nameOf(point);
}

std::string RandomSession::drag()
{
    const auto from = anyPoint();
    const auto to = below(2) == 0 ? anyPoint() : QPointF{anyPoint().x(), from.y()};
    swipe(from, to, static_cast<int>(below(3)) * 4);
    return "drag from " + nameOf(from) + " to " + nameOf(to);
}

std::string RandomSession::pullFromEdge()
{
    const QPointF from{3, anyPoint().y()};
    const QPointF to{anyPoint().x(), from.y()};
    swipe(from, to, 4);
    return "pull from the edge to " + nameOf(to);
}

std::string RandomSession::turnWheel()
{
    const auto point = anyPoint();
    const QPoint turn{0, (static_cast<int>(below(21)) - 10) * 120};
    QWheelEvent event{point,
                      application_.window()->mapToGlobal(point),
                      {},
                      turn,
                      Qt::NoButton,
                      Qt::NoModifier,
                      Qt::NoScrollPhase,
                      false};
    QCoreApplication::sendEvent(application_.window(), &event);
    return "wheel by " + std::to_string(turn.y()) + " at " + nameOf(point);
}

std::string RandomSession::type()
{
    static const std::vector<QString> kPieces{
        QStringLiteral("a"),     QStringLiteral("e"),  QStringLiteral("é"),
        QStringLiteral("r"),     QStringLiteral("oi"), QStringLiteral("s'"),
        QStringLiteral("alle"),  QStringLiteral("ç"),  QStringLiteral("%"),
        QStringLiteral("_"),     QStringLiteral("\""), QStringLiteral("\\"),
        QStringLiteral(" "),     QStringLiteral("/"),  QStringLiteral("😀"),
        QStringLiteral("\u0301")};
    QString text;
    for (auto left = 1 + below(4); left > 0; --left) {
        text += oneOf(kPieces);
    }
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, application_.window(), Qt::Key_unknown, QString{letter},
                            Qt::NoModifier);
    }
    return "type " + text.toStdString();
}

std::string RandomSession::pressKey()
{
    static const std::vector<Qt::Key> kKeys{
        Qt::Key_Escape, Qt::Key_Back,   Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_Up,
        Qt::Key_Down,   Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,   Qt::Key_Home,
        Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return,  Qt::Key_Return,
        Qt::Key_Enter,  Qt::Key_Space,  Qt::Key_Menu,     Qt::Key_Delete,  Qt::Key_Backspace};
    const auto key = oneOf(kKeys);
    QTest::keyClick(application_.window(), key);
    return "key " + std::to_string(key);
}

std::string RandomSession::pressShortcut()
{
    static const std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>> kShortcuts{
        {Qt::Key_F, Qt::ControlModifier}, {Qt::Key_1, Qt::ControlModifier},
        {Qt::Key_2, Qt::ControlModifier}, {Qt::Key_3, Qt::ControlModifier},
        {Qt::Key_A, Qt::ControlModifier}, {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier}, {Qt::Key_F10, Qt::NoModifier},
        {Qt::Key_F10, Qt::ShiftModifier}, {Qt::Key_Left, Qt::AltModifier}};
    const auto& [key, modifiers] = oneOf(kShortcuts);
    QTest::keyClick(application_.window(), key, modifiers);
    return "shortcut " + std::to_string(key);
}

std::string RandomSession::resize()
{
    static const std::vector<QSize> kSizes{kPhone,     {360, 640},  {280, 360}, {699, 600},
                                           {700, 600}, {1024, 768}, {844, 390}, {1600, 1000}};
    const auto size = oneOf(kSizes);
    application_.window()->resize(size);
    return "resize to " + std::to_string(size.width()) + " x " + std::to_string(size.height());
}

std::string RandomSession::requestFromOutside()
{
    static const std::vector<QString> kLinks{
        QStringLiteral("lumora://verb/aller"), QStringLiteral("lumora://verb/%C3%AAtre"),
        QStringLiteral("lumora://verb/none"), QStringLiteral("lumora://"),
        QStringLiteral("https://example.org/")};
    static const std::vector<std::string_view> kShortcuts{
        app::kSearchShortcut, "com.brindle.shortcut.favourite", "com.brindle.shortcut.history",
        "com.brindle.shortcut.list", "none"};
    qt::InstanceRequest request;
    if (below(2) == 0) {
        request.links = {oneOf(kLinks)};
    } else {
        request.shortcut = qt::toQString(oneOf(kShortcuts));
    }
    application_.serve(request);
    return "request " + (request.links + QStringList{request.shortcut.value_or(QString{})})
                            .join(' ')
                            .toStdString();
}

std::string RandomSession::changeAppearance()
{
    static const std::vector<double> kScales{0.8, 1, 1, 1.3, 2};
    const qt::Appearance appearance{
        .dark = below(2) == 0, .textScale = oneOf(kScales), .reducedMotion = below(2) == 0};
    application_.appearance().setDesktop(appearance);
    return "appearance with texts of " + std::to_string(appearance.textScale);
}

std::string RandomSession::leaveForBackground()
{
    application_.enterBackground();
    return "background";
}

void RandomSession::stayInOurFolders()
{
    auto& files = application_.fileChooser();
    if (files.asking() && !files.location()->file().startsWith(QDir::homePath() + '/')) {
        files.dismiss();
    }
}

bool RandomSession::escape()
{
    for (int presses = 0; presses < kMostEscapes && !isHome(); ++presses) {
        QTest::keyClick(application_.window(), Qt::Key_Escape);
        // What goes away is given the time for it.
        WindowDriver::wait(presses < 3 ? 30 : 300);
    }
    return isHome();
}

std::string RandomSession::goHome()
{
    auto& window = *application_.window();
    const WindowDriver driver{window};
    // A touch here is no hold, however slow the machine.
    QGuiApplication::styleHints()->setMousePressAndHoldInterval(kUsualHoldMilliseconds);
    // A row's menu may be open at home too.
    QTest::keyClick(&window, Qt::Key_Escape);
    if (!escape()) {
        return "Escape does not lead home" + state();
    }
    // A verb in the second pane comes to lie over the home screen.
    window.resize(kPhone);
    application_.appearance().setDesktop({});
    if (!becomes([&] { return application_.splitScreen().collapsed(); }, kPatience) || !escape()) {
        return "Escape does not lead home once there is one pane" + state();
    }
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    auto* const field = driver.find(QStringLiteral("Search"));
    if (field == nullptr || !becomes([&] { return field->hasActiveFocus(); }, kPatience)) {
        return "the home screen has no search field that answers";
    }
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
    if (!becomes([&] { return driver.cells().size() > 5; }, kPatience)) {
        return "the home screen shows no list";
    }
    if (!openVerb()) {
        return "no verb opens" + state();
    }
    if (!escape()) {
        return "there is no way back from a verb" + state();
    }
    WindowDriver::wait(300);
    return {};
}

bool RandomSession::openVerb()
{
    // The first touch may only stop what moves, or close a row swiped open.
    constexpr int kMostTaps = 3;
    const auto isOpen = [&] { return application_.splitScreen().primary().size() == 2; };
    for (int taps = 0; taps < kMostTaps && !isOpen(); ++taps) {
        WindowDriver::wait(300);
        const auto cells = WindowDriver{*application_.window()}.cells();
        if (!cells.empty()) {
            tap(WindowDriver::middleOf(*cells[cells.size() / 2]), Qt::LeftButton);
            becomes(isOpen, kPatienceWithTap);
        }
    }
    return isOpen();
}

std::size_t RandomSession::below(std::size_t count)
{
    return static_cast<std::size_t>(random_() % count);
}

double RandomSession::part()
{
    constexpr std::size_t kParts = 1000;
    return static_cast<double>(below(kParts)) / kParts;
}

template <typename T>
const T& RandomSession::oneOf(const std::vector<T>& things)
{
    return things[below(things.size())];
}

QPointF RandomSession::anyPoint()
{
    const auto x = part();
    // Rounded it stays inside.
    return {x * (application_.window()->width() - 1),
            part() * (application_.window()->height() - 1)};
}

std::vector<QQuickItem*> RandomSession::controls() const
{
    std::vector<QQuickItem*> found;
    const auto& window = *application_.window();
    collectControls(window.contentItem(), QRectF{{}, QSizeF{window.size() - QSize{1, 1}}}, found);
    return found;
}

void RandomSession::tap(const QPointF& point, Qt::MouseButton button)
{
    auto* const window = application_.window();
    if (button == Qt::LeftButton && below(2) == 0) {
        QTest::touchEvent(window, finger_).press(0, point.toPoint());
        QTest::touchEvent(window, finger_).release(0, point.toPoint());
    } else {
        QTest::mouseClick(window, button, {}, point.toPoint());
    }
}

void RandomSession::swipe(const QPointF& from, const QPointF& to, int milliseconds)
{
    constexpr int kSteps = 8;
    auto* const window = application_.window();
    QTest::touchEvent(window, finger_).press(0, from.toPoint());
    for (int step = 1; step <= kSteps; ++step) {
        QTest::touchEvent(window, finger_).move(0, (from + (to - from) * step / kSteps).toPoint());
        WindowDriver::wait(milliseconds);
    }
    QTest::touchEvent(window, finger_).release(0, to.toPoint());
}

bool RandomSession::isHome() const
{
    auto& presenter = application_.presenter();
    const auto& split = application_.splitScreen();
    const WindowDriver driver{*application_.window()};
    return !presenter.asking() && presenter.modals()->count() == 0 &&
           presenter.preview()->screen() == nullptr && !application_.fileChooser().asking() &&
           driver.find(QStringLiteral("shareSheet")) == nullptr &&
           driver.find(QStringLiteral("menuOpen")) == nullptr && split.primary().size() == 1;
}

std::string RandomSession::state() const
{
    auto& presenter = application_.presenter();
    const auto& split = application_.splitScreen();
    const auto* const focus = application_.window()->activeFocusItem();
    std::ostringstream text;
    text << " (panes " << (split.collapsed() ? 1 : 2) << ", screens " << split.primary().size()
         << " and " << split.secondary().size() << ", over them " << presenter.modals()->count()
         << ", question " << presenter.asking() << ", preview "
         << (presenter.preview()->screen() != nullptr) << ", file "
         << application_.fileChooser().asking() << ", focus "
         << (focus == nullptr ? "nowhere" : focus->metaObject()->className()) << ")";
    return text.str();
}

bool RandomSession::becomes(const std::function<bool()>& condition, int milliseconds) const
{
    return QTest::qWaitFor(condition, milliseconds);
}

} // namespace lumora::session
