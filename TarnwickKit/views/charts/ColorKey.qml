pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// A run's colour and a text about the run.
Item {
    id: key

    required property color color
    required property color textColor
    property real side: 10
    property alias text: words.text
    property alias font: words.font
    property alias elide: words.elide
    property alias wrapMode: words.wrapMode
    property bool spoken: true

    implicitWidth: side + 7 + words.implicitWidth
    implicitHeight: Math.max(side, words.height)

    Card {
        anchors.left: parent.left
        y: Math.round((Math.min(key.height, 16) - height) / 2)
        width: key.side
        height: key.side
        radius: 3
        color: key.color
    }
    CutTip {
        owner: key
        text: words.text
        isCut: words.truncated
    }
    PlainText {
        id: words

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: key.side + 7
        color: key.textColor
        Accessible.ignored: !key.spoken
    }
}
