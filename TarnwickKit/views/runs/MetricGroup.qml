pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// One metric of the compared runs, as bars on a common scale.
GridLayout {
    id: group

    required property comparedMetric metric
    required property real trackWidth
    property bool showsDifferences: false
    /// The metric's name stands above its bars.
    property bool isNarrow: false
    readonly property list<color> series: PaletteKey.palette.series

    columns: isNarrow ? 1 : 3
    columnSpacing: 14
    rowSpacing: 5

    Grid {
        Layout.preferredWidth: ViewMetrics.metricLabelWidth
        columns: group.isNarrow ? 2 : 1
        columnSpacing: 6
        rowSpacing: 1
        verticalItemAlignment: Grid.AlignBottom

        PlainText {
            width: group.isNarrow ? implicitWidth : Math.min(implicitWidth, ViewMetrics.metricLabelWidth)
            wrapMode: Text.Wrap
            text: group.metric.label
            font: Typeface.text(12, Font.Medium)
            color: PaletteKey.palette.text2
            Accessible.ignored: true
        }
        PlainText {
            text: group.metric.unit
            font: Typeface.mono(9)
            color: PaletteKey.palette.text3
            Accessible.ignored: true
        }
    }
    Separator {
        Layout.fillHeight: true
        visible: !group.isNarrow
        color: PaletteKey.palette.border
    }
    Column {
        spacing: 5

        Repeater {
            model: group.metric.bars

            Row {
                id: line

                required property int index
                required property comparedBar modelData

                spacing: 9
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.sentence

                Card {
                    anchors.verticalCenter: parent.verticalCenter
                    width: group.trackWidth
                    height: 15
                    radius: 4
                    color: PaletteKey.palette.track

                    Card {
                        anchors.left: parent.left
                        width: line.modelData.length
                        height: parent.height
                        radius: 4
                        color: group.series[line.index % group.series.length]
                    }
                }
                PlainText {
                    id: figure

                    anchors.verticalCenter: parent.verticalCenter
                    width: ViewMetrics.barFigureWidth
                    text: line.modelData.text
                    horizontalAlignment: Text.AlignLeft
                    font: Typeface.mono(11)
                    color: PaletteKey.palette.text2
                    Accessible.ignored: true

                    OnDemand {
                        active: line.modelData.isMarked

                        FigureMark {
                            anchors.verticalCenter: figure.verticalCenter
                            anchors.left: figure.left
                            anchors.leftMargin: figure.contentWidth + 5
                        }
                    }
                }
                OnDemand {
                    active: group.showsDifferences

                    PlainText {
                        anchors.verticalCenter: parent?.verticalCenter
                        width: ViewMetrics.differenceWidth
                        text: line.modelData.difference
                        font: Typeface.mono(11)
                        color: line.PaletteKey.palette.text2
                        horizontalAlignment: Text.AlignRight
                        fontSizeMode: Text.HorizontalFit
                        minimumPixelSize: 7
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }
                }
            }
        }
    }
}
