import QtQuick
import TarnwickKit.views

Column {
    id: block

    required property AnalyzerModel analyzer

    readonly property list<double> blockSizes: [4096, 65536, 262144, 1048576, 4194304]
    readonly property list<double> randomBlockSizes: [4096, 8192, 16384, 65536]

    spacing: 9

    SettingMenu {
        width: parent.width
        label: qsTr("Size")
        options: block.analyzer.sizeLabels
        current: block.analyzer.sizeIndex
        onChosen: index => block.analyzer.sizeIndex = index
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Write block")
        values: block.blockSizes
        bytes: block.analyzer.writeBlock
        onPicked: size => block.analyzer.writeBlock = size
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Read block")
        values: block.blockSizes
        bytes: block.analyzer.readBlock
        onPicked: size => block.analyzer.readBlock = size
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Random block")
        values: block.randomBlockSizes
        bytes: block.analyzer.randomBlock
        onPicked: size => block.analyzer.randomBlock = size
    }
    ToggleSwitch {
        width: parent.width
        topPadding: 2
        label: qsTr("Bypass cache")
        on: block.analyzer.bypassCache
        onWanted: on => block.analyzer.bypassCache = on
    }
}
