pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

/// The menu of a block size. Units: bytes.
SettingMenu {
    id: menu

    required property list<double> sizes
    required property double size

    signal picked(size: double)

    current: ViewMath.lastIndexOf(sizes, size)
    value: Format.block(size)
    onChosen: index => picked(sizes[index])
}
