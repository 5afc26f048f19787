pragma ComponentBehavior: Bound

import QtQuick
import OndelControls
import TarnwickKit.views

Column {
    id: block

    required property AnalyzerModel analyzer

    spacing: 9
    bottomPadding: -bypass.bottomPadding

    SettingMenu {
        width: parent.width
        //: The size of the test's file
        label: qsTr("Size")
        options: block.analyzer.sizeLabels
        current: block.analyzer.sizeIndex
        onChosen: index => block.analyzer.sizeIndex = index
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Write block")
        options: block.analyzer.blockLabels
        sizes: block.analyzer.blockValues
        size: block.analyzer.writeBlock
        onPicked: size => block.analyzer.writeBlock = size
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Read block")
        options: block.analyzer.blockLabels
        sizes: block.analyzer.blockValues
        size: block.analyzer.readBlock
        onPicked: size => block.analyzer.readBlock = size
    }
    BlockMenu {
        width: parent.width
        label: qsTr("Random block")
        options: block.analyzer.randomBlockLabels
        sizes: block.analyzer.randomBlockSizes
        size: block.analyzer.randomBlock
        onPicked: size => block.analyzer.randomBlock = size
    }
    ToggleSwitch {
        id: bypass

        width: parent.width
        leftPadding: ViewMetrics.sidebarInset
        rightPadding: ViewMetrics.sidebarInset
        topPadding: 2
        bottomPadding: Math.max(0, Metrics.leastTarget - implicitContentHeight - topPadding)
        textColor: PaletteKey.palette.text2
        label: qsTr("Bypass cache")
        hint: Words.bypassCache
        detail: hint
        explains: true
        on: block.analyzer.bypassCache
        onWanted: on => block.analyzer.bypassCache = on
    }
}
