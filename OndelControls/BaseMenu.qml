pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// A drop-down menu. Arrow keys, Home and End move in it, Return chooses, Escape closes, and so does another program that comes forward.
T.Menu {
    id: menu

    readonly property bool isInFront: Application.state === Qt.ApplicationActive
    property real leastWidth: 0
    property real corner: Metrics.menuCorner
    property color fill: palette.window
    property color outline: palette.mid
    property color shadowColor: "transparent"

    implicitWidth: Math.max(leastWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Metrics.menuMargin
    padding: Metrics.menuPadding
    overlap: 1
    cascade: false

    /// Opens with a corner at a place of the parent, on the side to which the language is written.
    function openAt(x: real, y: real): void {
        popup(Application.layoutDirection === Qt.RightToLeft ? x - implicitWidth : x, y); // `mirrored` is known only while it is open
    }
    /// To the first entry that can be chosen, or the last one; `step`: from which end to look.
    function goToEnd(step: int): void {
        let place = step > 0 ? 0 : count - 1;
        while (itemAt(place) && !(itemAt(place) instanceof T.MenuItem && itemAt(place).enabled))
            place += step;
        if (itemAt(place))
            currentIndex = place;
    }

    onIsInFrontChanged: {
        if (!isInFront)
            dismiss();
    }

    contentItem: ListView {
        implicitWidth: {
            let widest = 0;
            for (let i = 0; i < menu.count; ++i)
                widest = Math.max(widest, menu.itemAt(i).implicitWidth);
            return widest;
        }
        implicitHeight: contentHeight
        model: menu.contentModel
        currentIndex: menu.currentIndex
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                menu.goToEnd(event.key === Qt.Key_Home ? 1 : -1);
        }
    }
    background: Card {
        radius: menu.corner
        color: menu.fill
        outline: menu.outline
        shadowColor: menu.shadowColor
        shadowRadius: Metrics.menuShadow
        shadowOffset: Metrics.menuShadowOffset
    }
}
