import QtQuick
import TarnwickKit.views

/// A hairline of one logical pixel.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
}
