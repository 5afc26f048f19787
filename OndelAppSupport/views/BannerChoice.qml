pragma ComponentBehavior: Bound

import QtQuick
import OndelControls

/// What the support banner's menu offers.
BaseMenu {
    id: menu

    required property BannerMenu button

    palette: button.palette // a closed popup does not follow its window
    corner: 8
    onOpened: currentIndex = 0

    BaseMenuItem {
        text: menu.button.entry
        leftPadding: mirrored ? 20 : horizontalPadding
        rightPadding: mirrored ? horizontalPadding : 20
        onTriggered: menu.button.chosen()
    }
}
