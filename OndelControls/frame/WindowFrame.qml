pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// What stands around a window's content where the desktop draws nothing: the title bar, a border, and edges to resize the
/// window by. The window needs the flag FramelessWindowHint, and its content leaves the title bar's height free.
Item {
    id: frame

    required property Window window
    property alias titleHeight: bar.height
    /// The width that the title bar leaves to something else at its beginning.
    property real titleIndent: 0
    readonly property bool isFloating: window.visibility === Window.Windowed
    readonly property bool isResizable: window.minimumWidth < window.maximumWidth

    component Edge: WindowGrip {
        required property int modelData
        readonly property int thickness: 5
        readonly property int corner: 8
        readonly property bool isUpright: modelData & (Qt.LeftEdge | Qt.RightEdge)
        readonly property bool isLevel: modelData & (Qt.TopEdge | Qt.BottomEdge)

        edges: modelData
        width: !isUpright ? frame.width - 2 * corner : isLevel ? corner : thickness
        height: !isLevel ? frame.height - 2 * corner : isUpright ? corner : thickness
        x: !isUpright ? corner : modelData & Qt.LeftEdge ? 0 : frame.width - width
        y: !isLevel ? corner : modelData & Qt.TopEdge ? 0 : frame.height - height
    }

    TitleBar {
        id: bar

        anchors.right: parent.right
        width: frame.width - frame.titleIndent
        height: 36
        window: frame.window
        isResizable: frame.isResizable
    }
    Rectangle {
        anchors.fill: parent
        visible: frame.isFloating
        color: "transparent"
        // A little more than other borders have; in high contrast these are plain themselves.
        border.color: Qt.tint(frame.palette.mid, Qt.alpha(frame.palette.windowText, 0.35))
    }
    Repeater {
        model: frame.isFloating && frame.isResizable ? [Qt.TopEdge, Qt.BottomEdge, Qt.LeftEdge, Qt.RightEdge,
            Qt.TopEdge | Qt.LeftEdge, Qt.TopEdge | Qt.RightEdge, Qt.BottomEdge | Qt.LeftEdge, Qt.BottomEdge | Qt.RightEdge] : []

        Edge {}
    }
}
