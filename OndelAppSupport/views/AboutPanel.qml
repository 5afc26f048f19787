pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import OndelAppSupport.views

/// The About panel: name, version, and links to the maker, the support page and the acknowledgments.
PanelWindow {
    id: panel

    property appIdentity app: AppSupport.app

    title: qsTr("About %1").arg(app.name)
    wantedWidth: Math.max(Metrics.scaled(300), column.implicitWidth + 48)
    wantedHeight: column.implicitHeight + 48

    component Credit: Row {
        id: credit

        required property string text
        required property url address
        property bool first: false

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            visible: !credit.first
            text: " · "
            font.pixelSize: Metrics.scaled(11)
            color: panel.palette.placeholderText
            Accessible.ignored: true
        }
        LinkButton {
            textSize: Metrics.scaled(11)
            label: credit.text
            onClicked: AppSupport.openPage(credit.address)
        }
    }

    Column {
        id: column

        anchors.centerIn: parent
        spacing: 6

        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            source: "qrc:/ondel/Icons/tools.ondel.tarnwick.svg"
            sourceSize.width: 96
            sourceSize.height: 96
            Accessible.ignored: true
        }
        BodyText {
            anchors.horizontalCenter: parent.horizontalCenter
            text: panel.app.name
            font.pixelSize: Metrics.titleSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        BodyText {
            anchors.horizontalCenter: parent.horizontalCenter
            bottomPadding: 1
            text: qsTr("Version %1").arg(AppSupport.appVersion)
            font.pixelSize: Metrics.scaled(11)
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter

            Credit {
                first: true
                text: AppSupport.siteName
                address: panel.app.website
            }
            Credit {
                text: qsTr("Support %1").arg(panel.app.shortName)
                address: AppSupport.supportPage
            }
            Credit {
                visible: AppSupport.hasNotices
                text: qsTr("Acknowledgments")
                address: AppSupport.thirdPartyNotices
            }
        }
    }
}
