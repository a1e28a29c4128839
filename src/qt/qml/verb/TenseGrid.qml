// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Controls.Basic
import Lumora

// A verb's tenses as squares in centred columns, under the verb's name.
Item {
    id: root

    required property VerbDetailScreen screen
    readonly property CollectionItemModel collection: screen.collection
    // The tense of the form that was searched for; -1 for none.
    property int openedTense: -1
    property int openedLine: -1
    readonly property real inset: collection.sectionInset
    readonly property real spacing: collection.lineSpacing
    readonly property int fitting: Math.floor((width - 2 * inset + spacing) / grid.cellWidth)
    // A simple tense stands beside its compound one.
    readonly property int columns: fitting >= 4 ? 4 : fitting >= 2 ? 2 : 1
    readonly property real usedWidth: columns * grid.cellWidth - spacing

    // What is current from now on was chosen.
    property bool shown: false

    // The verb's card, under its name.
    property Component card: null

    // The person scrolled; this tense is now the first in sight.
    signal movedTo(int tense)
    // A form was held, or a tense's title tapped.
    signal formAsked(int tense, int line)
    signal tenseAsked(int tense)

    // Shows the screen's verb, which may be another one than before.
    function start() {
        tenses.collection = collection;
        shown = false;
        grid.cancelFlick();
        grid.currentIndex = 0;
        grid.positionViewAtBeginning();
        show(screen.topTense);
        fillInSight();
    }
    // The squares out of sight wait until the others are drawn.
    function fillInSight() {
        const bottom = grid.contentY + grid.height - grid.originY - (grid.headerItem?.height ?? 0);
        if (tenses.waiting)
            tenses.fill(columns * Math.ceil(bottom / grid.cellHeight));
    }
    function show(tense) {
        if (tense > 0)
            grid.positionViewAtIndex(tense, GridView.Beginning);
        if (openedTense >= 0)
            grid.currentIndex = openedTense;
        shown = true;
    }
    function showPlace(tense, line) {
        grid.forceLayout();
        grid.currentIndex = tense;
        grid.positionViewAtIndex(tense, GridView.Contain);
        (grid.itemAtIndex(tense) as TenseCard)?.takeKeyboard(line);
    }
    // The card at a point of the window, and the line there: -1 on its title.
    function askAt(point, forms) {
        const spot = grid.contentItem.mapFromItem(null, point);
        const card = grid.itemAt(spot.x, spot.y) as TenseCard;
        if (card === null)
            return;
        const place = card.mapFromItem(null, point);
        const line = card.lineAt(place.y);
        if (line >= 0 && forms)
            formAsked(card.index, line);
        else if (line < 0 && !forms && place.x < card.textEnd)
            tenseAsked(card.index);
    }

    TenseFits {
        id: tenseFits
        screen: root.screen
        fullSize: Theme.body - 1
        // Beside the play control of a line.
        room: root.collection.itemWidth - 28 - 30 - 8
        lineHeight: (root.collection.itemHeight - Theme.cardTitleHeight - 8 - 4 - Theme.gap) / 6
    }
    ReusableCollectionModel {
        id: tenses
    }
    Connections {
        target: tenses.waiting ? root.Window.window : null
        function onFrameSwapped() {
            tenses.fillAll();
        }
    }
    GridView {
        id: grid

        property real beginning: 0

        objectName: "tenses"
        // As wide as its columns: margins of its own would be one change of
        // width late.
        x: Math.max(0, Math.floor((root.width - root.usedWidth) / 2))
        width: root.columns * cellWidth
        height: root.height
        clip: true
        model: tenses
        focus: true
        activeFocusOnTab: true
        cacheBuffer: 1200
        boundsBehavior: Flickable.StopAtBounds
        cellWidth: Math.max(1, root.collection.itemWidth + root.spacing)
        cellHeight: Math.max(1, root.collection.itemHeight + root.spacing)
        bottomMargin: Math.max(0, root.inset - root.spacing)
        // Into the square; the arrows lead out of it.
        Keys.onReturnPressed: (currentItem as TenseCard)?.takeKeyboard(0)
        Keys.onEnterPressed: (currentItem as TenseCard)?.takeKeyboard(0)
        // The header, with the verb's card in it, may grow.
        onOriginYChanged: {
            if (contentY === beginning)
                contentY = originY;
            beginning = originY;
        }
        onCurrentIndexChanged: if (root.shown && currentIndex >= 0)
            root.movedTo(currentIndex)
        onHeightChanged: root.fillInSight()
        onContentYChanged: {
            root.fillInSight();
            if (moving || ScrollBar.vertical.pressed)
                root.movedTo(Math.max(0, Math.round((contentY - originY - headerItem.height) / cellHeight)) * root.columns);
        }

        ScrollBar.vertical: ScrollBar {
            Accessible.ignored: true
            parent: root
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            anchors.right: parent.right
        }

        header: Column {
            width: root.usedWidth
            onHeightChanged: root.fillInSight()

            Text {
                width: parent.width
                topPadding: Theme.margin
                bottomPadding: root.card === null ? Theme.margin : Theme.gap
                text: Theme.brokenAtSpaces(root.collection.headerText)
                color: Theme.text
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap
                Accessible.ignored: text === ""
                Accessible.role: Accessible.Heading
                Accessible.name: root.collection.headerText
            }
            Loader {
                id: cardPlace
                width: parent.width
                sourceComponent: root.card

                Connections {
                    target: cardPlace.item as VerbCard
                    function onFocused() {
                        grid.positionViewAtBeginning();
                    }
                    function onPassed() {
                        grid.forceActiveFocus(Qt.TabFocusReason);
                    }
                }
            }
        }
        delegate: TenseCard {
            openedLine: index === root.openedTense ? root.openedLine : -1
            screen: root.screen
            fits: tenseFits
            width: root.collection.itemWidth
            height: root.collection.itemHeight
            onPlayed: line => root.collection.tapAudio(index, line)
            onFormAsked: line => root.formAsked(index, line)
            onTenseAsked: root.tenseAsked(index)
        }
    }
    TapHandler {
        parent: grid
        onLongPressed: root.askAt(point.scenePosition, true)
        onTapped: eventPoint => root.askAt(eventPoint.scenePosition, false)
    }
    TapHandler {
        parent: grid
        acceptedButtons: Qt.RightButton
        // Without this a finger counts as every button, the right one too.
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad | PointerDevice.Stylus
        onTapped: eventPoint => root.askAt(eventPoint.scenePosition, true)
    }
}
