pragma ComponentBehavior: Bound

import TarnwickKit.views

/// Opens and closes the drawer with the sidebar.
IconButton {
    id: button

    required property bool isOpen

    label: isOpen ? qsTr("Hide Tests and Settings") : qsTr("Show Tests and Settings")
    symbol: "sidebar.leading"
    symbolSize: 14
}
