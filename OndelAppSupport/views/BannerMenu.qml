pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import OndelControls

/// The support banner's menu, which has one entry.
BaseButton {
    id: button

    required property string entry
    readonly property T.Menu menu: choice.object as T.Menu

    signal chosen

    implicitWidth: Metrics.leastTarget
    implicitHeight: Metrics.leastTarget
    //: Button: opens a menu
    label: qsTr("More")
    hint: menu?.visible ? "" : label
    detail: ""
    corner: Metrics.fieldCorner
    focusColor: "white"
    onClicked: {
        choice.active = true;
        menu.popup(button, LayoutMirroring.enabled ? width - menu.implicitWidth : 0, fitsBelow() ? height + Metrics.menuGap : -menu.implicitHeight - Metrics.menuGap);
    }

    Accessible.role: Accessible.ButtonMenu
    Keys.onDownPressed: button.clicked()

    function fitsBelow(): bool {
        return mapToItem(null, 0, height + Metrics.menuGap + menu.implicitHeight).y + menu.margins <= Window.height;
    }

    tip: Tip {
        parent: button
        text: button.hint
    }
    contentItem: Symbol {
        name: "ellipsis"
        size: 13
        color: "white"
    }
    background: Card {
        radius: button.corner
        color: button.hovered ? Qt.rgba(1, 1, 1, 0.16) : "transparent"
    }
    OnDemand {
        id: choice

        file: "BannerChoice.qml"
        given: ({
            button: button
        })
    }
}
