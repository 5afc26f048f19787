import QtQuick
import TarnwickKit.views

/// The menu of a block size. Units: bytes.
SettingMenu {
    id: menu

    required property list<double> values
    required property double bytes

    signal picked(size: double)

    options: values.map(size => Format.block(size))
    current: values.indexOf(bytes)
    value: Format.block(bytes)
    onChosen: index => picked(values[index])
}
