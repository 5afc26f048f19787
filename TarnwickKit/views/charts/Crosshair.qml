pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// Reads a chart at one time: a line, a dot on each curve, and their values beside it. The pointer moves it, and the
/// arrow keys while the chart has the focus: point by point, or by a tenth of the axis with Ctrl.
Item {
    id: cross

    required property ThroughputCanvas chart
    readonly property string sentence: cursor.active ? cursor.sentence : ""

    function take(event: KeyEvent): void {
        const steps = {
            [Qt.Key_Left]: -1,
            [Qt.Key_Right]: 1
        };
        const ends = {
            [Qt.Key_Home]: -1,
            [Qt.Key_End]: 1
        };
        if (event.key in steps && event.modifiers & Qt.ControlModifier)
            cursor.skip(steps[event.key] / 10);
        else if (event.key in steps)
            cursor.step(steps[event.key]);
        else if (cursor.active && event.key in ends)
            cursor.skip(ends[event.key]);
        else if (cursor.active && event.key === Qt.Key_Escape)
            cursor.leave();
        else
            return;
        event.accepted = true;
    }

    Connections {
        target: cross.chart

        function onActiveFocusChanged(): void {
            if (!cross.chart.activeFocus)
                cursor.leave();
        }
    }
    ChartCursor {
        id: cursor

        chart: cross.chart
    }
    HoverHandler {
        property real lastX: NaN

        // Told again at the same place, when something changes under it: the arrow keys count then.
        onPointChanged: {
            if (hovered && point.position.x !== lastX) {
                lastX = point.position.x;
                cursor.moveTo(lastX);
            }
        }
        onHoveredChanged: {
            if (!hovered) {
                lastX = NaN;
                cursor.leave();
            }
        }
    }
    Card {
        x: -Metrics.focusGap
        y: -Metrics.focusGap
        width: parent.width + 2 * Metrics.focusGap
        height: parent.height + 2 * Metrics.focusGap
        visible: cross.chart.activeFocus
        radius: Metrics.fieldCorner
        outlineWidth: Metrics.focusLine
        outline: PaletteKey.palette.teal
    }
    OnDemand {
        active: cursor.active

        ChartReading {
            width: cross.width
            height: cross.height
            cursor: cursor
        }
    }
}
