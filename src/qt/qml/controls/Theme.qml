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

    // The emblem's gold.
    readonly property color accentSecondary: "#f2b84b"
    readonly property color accentSecondaryInk: "#16191d"
    readonly property color accentSecondaryEdge: dark ? accentSecondary : "#9a5b00"
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
    readonly property color hover: dark ? "#1b2026" : "#f2f6fb"
    readonly property color notice: dark ? "#e4e8ee" : "#2b3138"
    readonly property color noticeText: dark ? "#16191d" : "#ffffff"
    readonly property color marked: dark ? "#3a3018" : "#fdf1d8"
    readonly property color field: dark ? "#0b1c33" : "#ffffff"
    readonly property color switchOn: dark ? "#3d7fd6" : accentPrimary
    readonly property color switchOff: dark ? "#6e7884" : "#858f9d"
    readonly property color star: dark ? "#f2b84b" : "#b87400"
    readonly property color danger: dark ? "#ff8a80" : "#b3261e"
    // What can be done with a row, where its controller names no colour.
    readonly property color rowAction: "#5b6470"
    readonly property color rowDeletion: "#b3261e"
    readonly property color shade: "#80000000"
    // The ring's own colours are its controller's; these go with them.
    readonly property color playInk: "#0155b3"
    readonly property color playBorder: dark ? "#ffffff" : "#0155b3"
    // A play control at rest.
    readonly property url playPicture: "image://icon/Play/" + String(textSecondary).slice(-6)
    readonly property url playTensePicture: "image://icon/PlayTense/" + String(accentText).slice(-6)
    readonly property int playPixels: Math.round(30 * pixelRatio)

    readonly property int small: Math.round(13 * textScale)
    readonly property int body: Math.round(17 * textScale)
    readonly property int title: Math.round(18 * textScale)
    readonly property int headline: Math.round(22 * textScale)
    // Bars have a fixed height, so their text grows less.
    readonly property real barScale: Math.min(textScale, 1.4)

    readonly property int gap: 8
    readonly property int margin: 16
    // The touch area of a row's play control.
    readonly property int playWidth: 50
    readonly property int touch: 44
    readonly property int barHeight: Math.round(52 * Math.max(1, (barScale + 1) / 2))
    readonly property int rowHeight: Math.round(60 * Math.max(1, textScale))
    readonly property int headerHeight: Math.round(28 * Math.max(1, textScale))
    // Of a tense, with a control in it.
    readonly property int headingHeight: Math.max(40, headerHeight)
    // Of a tense's square, two rows of it.
    readonly property int cardTitle: Math.min(body, 18) - 1
    readonly property int cardTitleHeight: 46
    // Larger than this, texts have no room in squares of a fixed size.
    readonly property bool largeText: textScale > 1.3
    readonly property int radius: 10
    readonly property int sheetRadius: 14
    readonly property int quick: reducedMotion ? 0 : 180
    readonly property int tipDelay: 700
    readonly property int tipTime: 4000
    readonly property int slow: Math.round(quick * 1.4)

    // A name that is too long goes on below at a space only.
    function brokenAtSpaces(name) {
        return name.includes(" ") ? name.replace(/-/g, "\u2011") : name;
    }
    // The colours of a mark-up that names them by what they are for.
    function withColors(markup) {
        return markup.replace(/"accent"/g, '"' + accentText + '"').replace(/"light"/g, '"' + textSecondary + '"');
    }
}
