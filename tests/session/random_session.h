// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/app/application.h"

#include <QPointF>

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

class QPointingDevice;
class QQuickItem;

namespace lumora::session {

/// Does at random what a person could do with the program, and looks whether
/// the way home is always open. GUI thread only.
class RandomSession {
public:
    /// The application is launched and outlives this.
    RandomSession(qt::Application& application, std::uint64_t seed);

    /// One action. It follows from the seed, its number and what is on screen;
    /// its answer says what was done.
    std::string act(std::uint64_t number);

    /// Leaves everything by Escape alone, then uses what is there. What did not
    /// work, empty when all did.
    std::string goHome();

private:
    struct Action {
        unsigned weight;
        std::string (RandomSession::*perform)();
    };

    std::string tapControl();
    std::string tapAnywhere();
    std::string holdControl();
    std::string askForMenu();
    std::string drag();
    std::string pullFromEdge();
    std::string turnWheel();
    std::string type();
    std::string pressKey();
    std::string pressShortcut();
    std::string resize();
    std::string requestFromOutside();
    std::string changeAppearance();
    std::string leaveForBackground();

    /// Nothing is saved anywhere else than below the home folder.
    void stayInOurFolders();
    std::size_t below(std::size_t count);
    double part();
    template <typename T>
    const T& oneOf(const std::vector<T>& things);
    QPointF anyPoint();
    /// What takes a touch, a key or text, and its middle.
    std::vector<QQuickItem*> controls() const;
    void tap(const QPointF& point, Qt::MouseButton button);
    void swipe(const QPointF& from, const QPointF& to, int milliseconds);
    bool isHome() const;
    /// For whoever has to find out why something did not work.
    std::string state() const;
    /// Presses Escape until the home screen is on top; false when it never is.
    bool escape();
    /// One of the list on the home screen; false when none opens.
    bool openVerb();
    bool becomes(const std::function<bool()>& condition, int milliseconds) const;

    qt::Application& application_;
    std::uint64_t seed_;
    std::mt19937_64 random_;
    QPointingDevice* finger_;
};

} // namespace lumora::session
