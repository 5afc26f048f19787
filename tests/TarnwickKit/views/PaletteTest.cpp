#include "TarnwickKit/views/style/Palette.h"

#include "TarnwickKit/views/charts/ChartSeries.h"
#include "TarnwickKit/views/style/PaletteKey.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QMetaProperty>

#include <gtest/gtest.h>

using namespace TarnwickKit::views;
using Kind = TarnwickKit::model::RunRecord::Kind;

namespace {

TEST(Palette, ColorsFromDigits) {
    const std::pair<QStringView, QRgb> cases[] = {
        {u"ff6b47", 0xffff6b47},   {u"FF6B47", 0xffff6b47},
        {u"0xfbf9f5", 0xfffbf9f5}, {u"47", 0xff000047},
        {u"12345678", 0xff345678}, {u"", 0xff000000},
        {u"red", 0xff000000},      {u"12 34", 0xff000000},
        {u"-1", 0xff000000},       {u"fffffffffffffffff", 0xff000000},
    };
    for (const auto& [digits, color] : cases)
        EXPECT_EQ(hex(digits).rgba(), color) << digits.toString().toStdString();
}

TEST(Palette, EveryFieldIsSetInBoth) {
    const QMetaObject& meta = Palette::staticMetaObject;
    int colors = 0;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
            const QVariant value = meta.property(i).read(palette);
            if (value.typeId() == QMetaType::QColor) {
                EXPECT_TRUE(value.value<QColor>().isValid()) << meta.property(i).name();
                ++colors;
            } else {
                EXPECT_EQ(value.value<QList<QColor>>().size(), 7);
            }
        }
    EXPECT_EQ(colors, 2 * 33);
    EXPECT_NEAR(Palette::dark().shadow.alphaF(), 0.55, 0.001);
    EXPECT_EQ(Palette::dark().accent, Palette::light().onAccent);
    EXPECT_NE(Palette::dark().grid, Palette::dark().borderSoft);
}

TEST(Palette, BadgeOfANetworkVolumeIsTheSameInBoth) {
    EXPECT_EQ(Palette::light().badgeColors(Kind::network), Palette::dark().badgeColors(Kind::network));
    EXPECT_EQ(Palette::dark().badgeColors(Kind::external).second, Palette::dark().coral2);
    EXPECT_EQ(Palette::light().badgeColors(Kind::internalDrive).first, Palette::light().teal2);
}

class PaletteTravels : public testing::Test {
protected:
    test::Stage stage{R"(Item {
        width: 10; height: 10
        Item {
            objectName: "between"
            property color seen: PaletteKey.palette.bg
            Item { Item { objectName: "leaf"; property color seen: PaletteKey.palette.bg } }
            ChartSeries { objectName: "series"; color: PaletteKey.palette.bg }
        }
        Item { objectName: "elsewhere"; PaletteKey.palette: Appearance.darkPalette }
        Item { objectName: "loose"; property color seen: PaletteKey.palette.bg }
    })"};
    QQuickItem* item(const char* name) { return stage.root().findChild<QQuickItem*>(QLatin1String(name)); }
    static QColor seen(QObject* item) { return item->property("seen").value<QColor>(); }
};

TEST_F(PaletteTravels, DownToWhatWasThereBefore) {
    EXPECT_EQ(seen(item("leaf")), Palette::light().bg); // nobody installed one
    PaletteKey::install(&stage.root(), Palette::dark());
    EXPECT_EQ(seen(item("leaf")), Palette::dark().bg);
    EXPECT_EQ(stage.root().findChild<ChartSeries*>()->color(), Palette::dark().bg);
    PaletteKey::install(item("between"), Palette::light());
    EXPECT_EQ(seen(item("leaf")), Palette::light().bg);
    EXPECT_EQ(seen(item("loose")), Palette::dark().bg);
    PaletteKey::install(item("between"), Palette::dark());
    EXPECT_EQ(seen(item("leaf")), Palette::dark().bg);
}

TEST_F(PaletteTravels, AlongWithTheViewsThatMove) {
    item("between")->setParentItem(item("elsewhere"));
    EXPECT_EQ(seen(item("leaf")), Palette::dark().bg);
    item("between")->setParentItem(nullptr);
    EXPECT_EQ(seen(item("leaf")), Palette::light().bg);
}

TEST(Appearance, SwitchRepaintsTheChartsGrid) {
    test::Stage stage("ThroughputChart { width: 100; height: 60 }");
    const QImage light = stage.picture();
    PaletteKey::install(&stage.root(), Palette::dark());
    EXPECT_GT(test::distance(light, stage.picture()), 5);
}

} // namespace
