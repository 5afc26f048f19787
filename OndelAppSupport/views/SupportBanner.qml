pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import OndelAppSupport.views

/// The note that asks for support. Its buttons move below the text when one row is too narrow, and into more lines.
Card {
    id: banner

    property SupportNudges nudges: AppSupport.nudges
    property appIdentity app: AppSupport.app
    property bool highContrast: false
    readonly property real buttonsWidth: ask.width + later.width + more.width + 2 * buttons.spacing
    readonly property bool fitsOneRow: width >= 24 + heart.width + 8 + Math.max(free.implicitWidth, plea.implicitWidth) + 12 + buttonsWidth
    readonly property real shownHeight: buttons.height - 2 * ask.reach

    implicitHeight: 24 + (fitsOneRow ? Math.max(words.height, shownHeight) : words.height + 10 + shownHeight)
    radius: 10
    color: LayoutMirroring.enabled ? OndelBrand.navy : OndelBrand.blue
    endColor: LayoutMirroring.enabled ? OndelBrand.blue : OndelBrand.navy
    endPoint: Qt.point(1, 0)
    Accessible.role: Accessible.Grouping
    Accessible.name: free.text

    Symbol {
        id: heart

        anchors.left: parent.left
        anchors.leftMargin: 12
        y: banner.fitsOneRow ? Math.round((parent.height - height) / 2) : 12
        name: "heart.fill"
        size: 13
        color: OndelBrand.coral
    }
    Column {
        id: words

        anchors.left: heart.right
        anchors.leftMargin: 8
        anchors.right: banner.fitsOneRow ? buttons.left : parent.right
        anchors.rightMargin: 12
        y: banner.fitsOneRow ? Math.round((parent.height - height) / 2) : 12

        BodyText {
            id: free

            width: parent.width
            text: qsTr("%1 is free.").arg(banner.app.shortName)
            font.pixelSize: Metrics.captionSize
            font.weight: Font.Medium
            color: "white"
        }
        BodyText {
            id: plea

            width: parent.width
            text: qsTr("If it’s useful to you, your support helps keep it going.")
            font.pixelSize: Metrics.noteSize
            color: Qt.rgba(1, 1, 1, 0.78)
        }
    }
    Flow {
        id: buttons

        width: banner.fitsOneRow ? banner.buttonsWidth : banner.width - 24
        anchors.left: banner.fitsOneRow ? undefined : parent.left
        anchors.leftMargin: 12
        anchors.right: banner.fitsOneRow ? parent.right : undefined
        anchors.rightMargin: 12
        y: banner.fitsOneRow ? Math.round((parent.height - height) / 2) : words.y + words.height + 10 - (height - banner.shownHeight) / 2
        spacing: 6

        BannerButton {
            id: ask

            prominent: true
            prominentColor: banner.highContrast ? OndelBrand.deepCoral : OndelBrand.coralButton
            label: qsTr("Support on Ko-fi")
            onClicked: banner.nudges.openSupportPage(true)
        }
        BannerButton {
            id: later

            label: qsTr("Not Now")
            hint: qsTr("Hide this for a week")
            onClicked: banner.nudges.notNow()
        }
        BannerMenu {
            id: more

            entry: qsTr("I’ve Already Supported %1").arg(banner.app.shortName)
            onChosen: banner.nudges.isSupporter = true
        }
    }
}
