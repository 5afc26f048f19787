pragma ComponentBehavior: Bound

import QtQuick
import TarnwickKit.views

/// The menu of a block size. Units: bytes.
SettingMenu {
    id: menu

    required property list<double> sizes
    required property double size

    signal picked(size: double)

    current: {
        let at = sizes.length - 1;
        while (at >= 0 && sizes[at] !== size)
            --at;
        return at;
    }
    value: Format.block(size)
    onChosen: index => picked(sizes[index])
}
