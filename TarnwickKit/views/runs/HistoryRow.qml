pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

/// A saved run in the history.
PlainButton {
    id: row

    required property AnalyzerModel analyzer
    required property runRecord run
    readonly property runFacts facts: Runs.facts(run)
    /// What else there is to say of the run.
    property string note: ""
    readonly property string origin: note === "" ? facts.connection : facts.connection + " · " + note
    /// False in compare mode, where the row is part of a check box.
    property bool live: true
    /// The width that the other items leave for the texts. The texts' actual width comes too late: it is known after the
    /// layout, and a change of their height would then need another one.
    readonly property real room: ViewMath.roomBeside(availableWidth,
        [dot.implicitWidth, badge.implicitWidth, ViewMetrics.statWidth, ViewMetrics.statWidth, curves.implicitWidth,
         remove.implicitContentWidth, fold.implicitWidth], line.spacing)

    signal rename
    signal share
    signal remove

    label: facts.title
    detail: facts.shortStamp + " · " + origin
    corner: 12
    leftPadding: 16
    rightPadding: 16
    topPadding: 13
    bottomPadding: 13
    hoverEnabled: true
    dimsWhenInactive: false
    Accessible.ignored: !live

    background: Card {
        radius: row.corner
        color: row.PaletteKey.palette.panel
        outline: row.hovered ? Qt.alpha(row.PaletteKey.palette.teal, ViewMetrics.hoverOpacity) : row.PaletteKey.palette.border
    }
    contentItem: RowLayout {
        id: line

        spacing: 12

        Card {
            id: dot

            implicitWidth: 8
            implicitHeight: 8
            radius: 4
            color: row.facts.isNetwork ? row.PaletteKey.palette.amber : row.PaletteKey.palette.goodDot
        }
        Card {
            id: badge

            implicitWidth: ViewMetrics.badgeSide
            implicitHeight: ViewMetrics.badgeSide
            radius: 8
            color: row.PaletteKey.palette.badgeStart(row.facts.kind)
            endColor: row.PaletteKey.palette.badgeEnd(row.facts.kind)
            endPoint: Qt.point(0, 1)

            Card {
                anchors.centerIn: parent
                width: 12
                height: 12
                radius: 3
                color: Qt.rgba(1, 1, 1, 0.85)
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: 0
            spacing: 2

            PlainText {
                Layout.fillWidth: true
                text: row.facts.title
                horizontalAlignment: Text.AlignLeft // in every script
                font: Typeface.display(14)
                color: row.PaletteKey.palette.text
                elide: Text.ElideRight
                maximumLineCount: 1
                Accessible.ignored: true
            }
            PlainText {
                readonly property bool fits: whole.width <= row.room

                Layout.fillWidth: true
                text: fits ? whole.text : row.facts.shortStamp + "\n" + row.origin
                horizontalAlignment: Text.AlignLeft
                font: Typeface.mono(10.5)
                color: row.PaletteKey.palette.text3
                elide: Text.ElideRight
                fontSizeMode: fits ? Text.FixedSize : Text.HorizontalFit
                minimumPixelSize: 8
                lineHeight: fits ? 1 : 1.07
                Accessible.ignored: true

                TextMetrics {
                    id: whole

                    text: row.detail
                    font: Typeface.mono(10.5)
                }
            }
        }
        RunSummaryStat {
            Layout.preferredWidth: ViewMetrics.statWidth
            label: qsTr("Write")
            value: row.facts.writeBps
            isMarked: row.facts.isWriteMarked
            dot: row.PaletteKey.palette.coral
        }
        RunSummaryStat {
            Layout.preferredWidth: ViewMetrics.statWidth
            label: qsTr("Read")
            value: row.facts.readBps
            isMarked: row.facts.isReadMarked
            dot: row.PaletteKey.palette.teal
        }
        DualSparkline {
            id: curves

            implicitWidth: 96
            implicitHeight: 34
            run: row.run
        }
        PlainButton {
            id: remove

            Layout.margins: -padding
            padding: (Metrics.leastTarget - implicitContentWidth) / 2
            label: qsTr("Delete %1").arg(row.facts.title)
            hint: qsTr("Delete this run")
            corner: 4
            dimsWhenInactive: false
            Accessible.ignored: !row.live
            onClicked: row.remove()

            contentItem: Symbol {
                name: "trash"
                size: 11
                color: remove.hovered ? row.PaletteKey.palette.text : row.PaletteKey.palette.text3
            }
        }
        Symbol {
            id: fold

            name: "chevron.down"
            size: 11
            color: row.PaletteKey.palette.text3
        }
    }

    onHoveredChanged: actions.active = true
    Keys.onPressed: event => {
        actions.active = true;
        (actions.object as RunActions).take(event);
    }

    // A history has fifty rows, and few are acted on.
    OnDemand {
        id: actions

        RunActions {
            analyzer: row.analyzer
            run: row.run
            facts: row.facts
            onRename: row.rename()
            onShare: row.share()
            onRemove: row.remove()
        }
    }
}
