pragma ComponentBehavior: Bound

import QtQuick

/// Sets the text format, which PlainText then makes read-only. Use PlainText instead.
Text {
    textFormat: Text.PlainText
}
