pragma ComponentBehavior: Bound

import QtQuick

/// The part of PlainText that sets what PlainText then hides. For PlainText alone.
Text {
    textFormat: Text.PlainText
}
