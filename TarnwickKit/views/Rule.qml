import QtQuick

/// A hairline of one logical pixel.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
}
