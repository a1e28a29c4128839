// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma Singleton
import QtQuick
import Lumora

// The one place for colours, sizes and distances.
QtObject {
    // Set by the window, with the pixel ratio of its screen.
    property Appearance appearance: null
    property real pixelRatio: 1

    readonly property bool dark: appearance?.dark ?? false
    readonly property color accentPrimary: appearance?.accent ?? "#0b4ea2"
    // The person's wish for larger or smaller text.
    readonly property real textScale: appearance?.textScale ?? 1
    // The person's wish to see nothing move.
    readonly property bool reducedMotion: appearance?.reducedMotion ?? false

    readonly property color accentSecondary: dark ? "#f2b84b" : "#9a5b00"
    readonly property color accentSecondaryInk: dark ? "#16191d" : "#ffffff"
    // Accent on the page rather than behind white text.
    readonly property color accentText: dark ? "#8ab8f5" : accentPrimary
    // What the launch chose, for a light page.
    readonly property color navigationBarTint: appearance?.navigationBarTint ?? "#ffffff"
    readonly property color navigationBarBackground: appearance?.navigationBarBackground ?? accentPrimary
    readonly property color navigationBarTitle: appearance?.navigationBarTitle ?? "#ffffff"
    readonly property color tabBarTint: appearance?.tabBarTint ?? accentPrimary
    readonly property color segmentedControlTint: appearance?.segmentedControlTint ?? "#555555"
    readonly property color barBackground: dark ? "#10325f" : navigationBarBackground
    readonly property color tabOn: dark ? accentText : tabBarTint
    readonly property color menu: dark ? "#0d2444" : Qt.darker(accentPrimary, 1.25)
    readonly property color barText: "#ffffff"
    readonly property color barTextDisabled: "#8fa9cc"
    readonly property color background: dark ? "#121417" : "#ffffff"
    readonly property color raised: dark ? "#1e2227" : "#ffffff"
    readonly property color grouped: dark ? "#0b0d0f" : "#eef1f6"
    readonly property color header: dark ? "#1e2227" : "#eef1f6"
    readonly property color text: dark ? "#f1f3f5" : "#16191d"
    readonly property color textSecondary: dark ? "#aab2bd" : "#59626e"
    readonly property color separator: dark ? "#31373e" : "#d9dee6"
    readonly property color segment: dark ? "#2b3138" : "#dde3ec"
    readonly property color segmentOn: dark ? "#c3cad3" : segmentedControlTint
    readonly property color segmentInk: dark ? "#16191d" : "#ffffff"
    readonly property color pressed: dark ? "#2a3038" : "#e3eaf4"
    readonly property color field: dark ? "#0b1c33" : "#ffffff"
    readonly property color switchOn: dark ? "#3d7fd6" : accentPrimary
    readonly property color switchOff: dark ? "#6e7884" : "#858f9d"
    readonly property color star: dark ? "#f2b84b" : "#b87400"
    readonly property color danger: dark ? "#ff8a80" : "#b3261e"
    readonly property color shade: "#80000000"
    // The ring's own colours are its controller's; these go with them.
    readonly property color playInk: "#0155b3"
    readonly property color playBorder: dark ? "#ffffff" : "#0155b3"
    // A play control at rest.
    readonly property url playPicture: "image://icon/Play/" + String(playBorder).slice(-6)
    readonly property int playPixels: Math.round(30 * pixelRatio)

    readonly property int small: Math.round(13 * textScale)
    readonly property int body: Math.round(17 * textScale)
    readonly property int title: Math.round(18 * textScale)
    readonly property int headline: Math.round(22 * textScale)
    // Bars have a fixed height, so their text grows less.
    readonly property real barScale: Math.min(textScale, 1.4)

    readonly property int gap: 8
    readonly property int margin: 16
    readonly property int touch: 44
    readonly property int barHeight: Math.round(52 * Math.max(1, (barScale + 1) / 2))
    readonly property int rowHeight: Math.round(60 * Math.max(1, textScale))
    readonly property int headerHeight: Math.round(28 * Math.max(1, textScale))
    readonly property int radius: 10
    readonly property int sheetRadius: 14
    readonly property int quick: reducedMotion ? 0 : 180
    readonly property int slow: Math.round(quick * 1.4)

    // A form that is too long goes on below at a space only.
    function brokenAtSpaces(form) {
        return form.includes(" ") ? form.replace(/-/g, "\u2011").replace(/\)\(/g, ")\u2060(") : form;
    }
}
