pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// A window's title, its buttons, and a ground to move the window by. A double click maximizes it, a right click opens
/// a menu of what can be done with it.
Item {
    id: bar

    required property Window window
    /// Whether the window has more than one size.
    required property bool isResizable
    readonly property bool isMaximized: window.visibility === Window.Maximized
    readonly property color ink: window.active ? palette.windowText : palette.placeholderText

    function toggleMaximized(): void {
        if (isMaximized)
            window.showNormal();
        else if (isResizable)
            window.showMaximized();
    }

    Accessible.role: Accessible.Grouping // Qt reports a title bar as a text
    Accessible.name: window.title

    WindowGrip {
        anchors.fill: parent
        onDoubleClicked: bar.toggleMaximized()
        onMenuWanted: place => menu.openAt(place.x, place.y)
    }
    PlainText {
        // From the bar's beginning, which is at the right in languages that are written from there.
        readonly property real room: bar.width - buttons.width - buttons.anchors.rightMargin - 12
        readonly property real centred: bar.width - (bar.window.width + implicitWidth) / 2

        // In the middle of the window, or else as near to it as the menus and the buttons allow.
        anchors.left: parent.left
        anchors.leftMargin: Math.max(12, Math.min(centred, room - width))
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(0, room - 12))
        visible: width >= Math.min(implicitWidth, 60)
        text: bar.window.title
        font.pixelSize: Metrics.textSize
        font.weight: Font.DemiBold
        color: bar.ink
        elide: Text.ElideRight
        maximumLineCount: 1
        Accessible.ignored: true
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        CaptionButton {
            visible: bar.isResizable && bar.width >= 150 // else there is too little to move a narrow window by
            //: Of a window
            label: qsTr("Minimize")
            onClicked: bar.window.showMinimized()

            Rectangle {
                y: 5
                width: 10
                height: 1
                color: bar.ink
            }
        }
        CaptionButton {
            visible: bar.isResizable
            //: Of a window: it gets back the size that it had, or it fills the screen
            label: bar.isMaximized ? qsTr("Restore") : qsTr("Maximize")
            onClicked: bar.toggleMaximized()

            Rectangle {
                y: bar.isMaximized ? 2 : 0
                width: 10 - y
                height: width
                color: "transparent"
                border.color: bar.ink
            }
            Rectangle { // the one behind it
                visible: bar.isMaximized
                x: 2
                width: 8
                height: 1
                color: bar.ink
            }
            Rectangle {
                visible: bar.isMaximized
                x: 9
                width: 1
                height: 8
                color: bar.ink
            }
        }
        CaptionButton {
            //: Of a window
            label: qsTr("Close")
            onClicked: bar.window.close()

            Symbol {
                anchors.fill: parent
                name: "xmark"
                size: 10
                color: bar.ink
            }
        }
    }
    BaseMenu {
        id: menu

        palette: bar.palette // a closed popup does not follow its window

        BaseMenuItem {
            text: qsTr("Minimize")
            enabled: bar.isResizable
            onTriggered: bar.window.showMinimized()
        }
        BaseMenuItem {
            text: bar.isMaximized ? qsTr("Restore") : qsTr("Maximize")
            enabled: bar.isResizable
            onTriggered: bar.toggleMaximized()
        }
        BaseMenuItem {
            text: qsTr("Close")
            onTriggered: bar.window.close()
        }
    }
}
