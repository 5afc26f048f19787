pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import OndelControls
import TarnwickKit.views

Rectangle {
    id: toolbar

    required property AnalyzerModel analyzer
    required property TargetFacts target
    /// The sidebar is a drawer, which needs a button.
    property bool hasDrawer: false
    property bool isDrawerOpen: false
    readonly property bool hasTwoLines: hasDrawer && width < ViewMetrics.narrowToolbar

    signal drawerWanted(open: bool, reason: int)

    /// Starts a run like the run button.
    function run(): void {
        runButton.run();
    }
    function focusDrawerButton(reason: int): void {
        (opener.object as DrawerButton)?.forceActiveFocus(reason);
    }

    implicitHeight: lines.implicitHeight + 22
    color: PaletteKey.palette.panel2

    ColumnLayout {
        id: lines

        anchors.fill: parent
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        anchors.topMargin: 11
        anchors.bottomMargin: 11
        spacing: 10

        RowLayout {
            id: row

            spacing: 14

            OnDemand {
                id: opener

                active: toolbar.hasDrawer

                DrawerButton {
                    isOpen: toolbar.isDrawerOpen
                    onClicked: toolbar.drawerWanted(!isOpen, visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason)
                }
            }
            VolumeDropdown {
                Layout.fillWidth: true
                Layout.minimumWidth: 0
                Layout.maximumWidth: toolbar.hasTwoLines ? Infinity : Math.ceil(implicitWidth)
                analyzer: toolbar.analyzer
                target: toolbar.target
            }
            Item {
                id: room

                Layout.fillWidth: true
                Layout.minimumWidth: 8
                visible: !toolbar.hasTwoLines

                OnDemand {
                    active: toolbar.target.folder.length > 0 && room.width >= ViewMetrics.folderRoom

                    FolderLine {
                        anchors.left: parent?.left
                        anchors.verticalCenter: parent?.verticalCenter
                        width: Math.min(implicitWidth, room.width)
                        target: toolbar.target
                    }
                }
            }
            RowLayout {
                id: ending

                parent: toolbar.hasTwoLines ? lines : row
                Layout.fillWidth: toolbar.hasTwoLines
                spacing: row.spacing

                StatusPill {
                    analyzer: toolbar.analyzer
                }
                Item {
                    Layout.fillWidth: true
                    visible: toolbar.hasTwoLines
                }
                RunButton {
                    id: runButton

                    analyzer: toolbar.analyzer
                }
            }
        }
    }
}
