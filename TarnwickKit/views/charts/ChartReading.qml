pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// What a crosshair shows. The chart's description has it for assistive technology.
Item {
    id: reading

    required property ChartCursor cursor

    Rectangle {
        x: Math.round(reading.cursor.x)
        y: 8
        width: 1
        height: reading.height - 28
        color: reading.PaletteKey.palette.text2
    }
    Repeater {
        model: reading.cursor.values

        Rectangle {
            required property chartValue modelData

            x: reading.cursor.x - width / 2
            y: modelData.y - height / 2
            width: 8
            height: 8
            radius: 4
            color: modelData.color
            border.width: 1.5
            border.color: reading.PaletteKey.palette.panel
        }
    }
    Card {
        readonly property real behind: reading.cursor.x + 10

        x: behind + width <= reading.width ? behind : Math.max(0, reading.cursor.x - 10 - width)
        y: 10
        width: texts.width + 20
        height: texts.height + 14
        radius: Metrics.tipCorner
        color: reading.PaletteKey.palette.panel
        outline: reading.PaletteKey.palette.border
        shadowColor: reading.PaletteKey.palette.shadow
        shadowRadius: Metrics.tipShadow
        shadowOffset: Metrics.tipShadowOffset

        Column {
            id: texts

            x: 10
            y: 7
            spacing: 3

            PlainText {
                text: reading.cursor.time
                font: Typeface.mono(11)
                color: reading.PaletteKey.palette.text2
                Accessible.ignored: true
            }
            Repeater {
                model: reading.cursor.values

                ColorKey {
                    required property chartValue modelData

                    width: Math.min(implicitWidth, reading.width / 2)
                    side: 9
                    color: modelData.color
                    text: modelData.text
                    font: Typeface.text(12)
                    textColor: reading.PaletteKey.palette.text
                    elide: Text.ElideMiddle
                    spoken: false
                }
            }
        }
    }
}
