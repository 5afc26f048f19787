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
    /// The figures stand in a line of their own.
    property bool hasTwoLines: false
    /// The width that the other items leave for the texts.
    readonly property real room: ViewMath.roomBeside(availableWidth,
        [dot.implicitWidth, badge.implicitWidth, remove.implicitContentWidth, fold.implicitWidth], line.columnSpacing)
        - (hasTwoLines ? 0 : figures.implicitWidth + line.columnSpacing)

    signal rename
    signal share
    signal remove

    label: facts.title
    hint: words.isCut ? facts.title + "\n" + detail : ""
    detail: facts.shortStamp + " · " + origin
    corner: 12
    leftPadding: 16
    rightPadding: 16
    topPadding: 13
    bottomPadding: 13
    dimsWhenInactive: false
    Accessible.ignored: !live

    background: Card {
        radius: row.corner
        color: row.PaletteKey.palette.panel
        outline: row.frameColor
    }
    contentItem: GridLayout {
        id: line

        columnSpacing: 12
        rowSpacing: 10

        Card {
            id: dot

            implicitWidth: 8
            implicitHeight: 8
            radius: 4
            color: row.facts.isNetwork ? row.PaletteKey.palette.amber : row.PaletteKey.palette.goodDot
        }
        HistoryBadge {
            id: badge

            color: row.PaletteKey.palette.badgeStart(row.facts.kind)
            endColor: row.PaletteKey.palette.badgeEnd(row.facts.kind)
        }
        HistoryWords {
            id: words

            title: row.facts.title
            stamp: row.facts.shortStamp
            origin: row.origin
            room: row.room
        }
        HistoryFigures {
            id: figures

            Layout.row: row.hasTwoLines ? 1 : 0
            Layout.column: row.hasTwoLines ? 0 : 3
            Layout.columnSpan: row.hasTwoLines ? 5 : 1
            // Its own width would be shared out among the columns that it spans.
            Layout.fillWidth: row.hasTwoLines
            Layout.minimumWidth: row.hasTwoLines ? 1 : -1
            Layout.preferredWidth: row.hasTwoLines ? 1 : -1
            spacing: line.columnSpacing
            run: row.run
            facts: row.facts
            fillsWidth: row.hasTwoLines
        }
        PlainButton {
            id: remove

            Layout.row: 0
            Layout.column: row.hasTwoLines ? 3 : 4
            Layout.margins: -padding
            padding: (Metrics.leastTarget - implicitContentWidth) / 2
            //: %1 is the title of a run
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

            Layout.row: 0
            Layout.column: row.hasTwoLines ? 4 : 5
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
