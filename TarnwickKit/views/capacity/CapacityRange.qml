pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// The map of a check's range with its legend, and the rates along it.
ColumnLayout {
    id: view

    required property LiveCheck check
    readonly property bool hasRates: check.writeRates.length > 1 || check.readRates.length > 1

    spacing: 10

    CapacityMap {
        id: map

        Layout.fillWidth: true
        Layout.topMargin: 6
        cells: view.check.cells
        Accessible.role: Accessible.Chart
        Accessible.name: qsTr("Map of the checked space")

        // The rows for assistive technology.
        Repeater {
            model: view.check.cells.byteLength > 0 ? map.rows : 0

            Item {
                required property int index

                y: index * map.pitch
                width: map.width
                height: map.pitch
                Accessible.role: Accessible.StaticText
                Accessible.name: view.check.rowText(view.check.revision, index * map.columns, map.columns, map.rows * map.columns)
            }
        }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 16

        Repeater {
            model: view.check.kinds

            CapacityKey {
                required property cellKind modelData

                kind: modelData
            }
        }
    }
    RowLayout {
        Layout.topMargin: 6
        visible: view.hasRates
        spacing: 14

        PlainText {
            Layout.fillWidth: true
            text: qsTr("Rate along the space, up to %1 MB/s").arg(Format.mbValue(1e6 * rates.highest))
            font: Typeface.mono(10.5)
            color: PaletteKey.palette.text2
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
        }
        LegendItem {
            color: PaletteKey.palette.coral
            //: Noun: what a curve shows
            label: qsTr("Write")
        }
        LegendItem {
            color: PaletteKey.palette.teal
            //: Noun: what a curve shows
            label: qsTr("Read")
        }
    }
    RateCurves {
        id: rates

        Layout.fillWidth: true
        Layout.preferredHeight: 64
        visible: view.hasRates
        write: view.check.writeRates
        read: view.check.readRates
        writeColor: PaletteKey.palette.coral
        readColor: PaletteKey.palette.teal
        Accessible.ignored: true // the passes' rates are among the facts

        Separator {
            anchors.bottom: parent.bottom
            width: parent.width
            color: PaletteKey.palette.grid
        }
    }
}
