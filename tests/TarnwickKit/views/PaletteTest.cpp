#include "TarnwickKit/views/style/Palette.h"

#include "TarnwickKit/views/charts/ChartSeries.h"
#include "TarnwickKit/views/style/PaletteKey.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QMetaProperty>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

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

const Palette* const all[] = {&Palette::light(), &Palette::dark(), &Palette::contrastLight(),
                              &Palette::contrastDark()};

/// Relative luminance and contrast ratio: WCAG 2.2.
double luminance(const QColor& color) {
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}
double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

TEST(Palette, ContrastOfTextAndMarks) {
    for (const Palette* p : all) {
        const bool isHigh = p->hasContrast();
        for (const QColor& ground : {p->bg, p->body, p->sidebar, p->panel, p->panel2}) {
            const std::string where = p->text.name().toStdString() + " on " + ground.name().toStdString();
            for (const QColor& text : {p->text, p->text2, p->heading})
                EXPECT_GE(contrast(text, ground), isHigh ? 7 : 4.5) << where;
            EXPECT_GE(contrast(p->accent, ground), 3) << where; // what is highlighted or selected
            for (const QColor& text : {p->warning(), p->link(), p->danger()})
                EXPECT_GE(contrast(text, ground), isHigh ? 7 : 4.5)
                    << text.name().toStdString() << " in " << where;
            if (!isHigh)
                continue;
            for (const QColor& text : {p->text3, p->coralink, p->teal, p->amber, p->good})
                EXPECT_GE(contrast(text, ground), 7) << text.name().toStdString() << " in " << where;
            for (const QColor& mark : {p->coral, p->goodDot, p->grid, p->borderSoft})
                EXPECT_GE(contrast(mark, ground), 4.5) << mark.name().toStdString() << " in " << where;
            for (const QColor& mark : p->series)
                EXPECT_GE(contrast(mark, ground), 4.5) << mark.name().toStdString() << " in " << where;
            EXPECT_GE(contrast(p->onStop(), p->text2), 7) << where;
        }
        EXPECT_GE(contrast(p->onAccent, p->accent), 7);
    }
}

TEST(Palette, WarningsAreNotToldByColorAlone) {
    for (const bool isWarning : {false, true}) {
        test::Stage stage("InfoRow { width: 200; label: 'Wear'; value: '99 %' }",
                          {{QStringLiteral("warning"), isWarning}});
        const auto items = test::itemsOf(stage.root());
        EXPECT_EQ(std::ranges::any_of(items,
                                      [](const QQuickItem* item) {
                                          return item->property("name") ==
                                                 QStringLiteral("exclamationmark.triangle.fill");
                                      }),
                  isWarning);
    }
}

TEST(Palette, EveryFieldIsSetInAll) {
    const QMetaObject& meta = Palette::staticMetaObject;
    int colors = 0;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        for (const Palette* palette : all) {
            const QVariant value = meta.property(i).read(palette);
            if (value.typeId() == QMetaType::QColor) {
                EXPECT_TRUE(value.value<QColor>().isValid()) << meta.property(i).name();
                ++colors;
            } else {
                EXPECT_EQ(value.value<QList<QColor>>().size(), 7);
            }
        }
    EXPECT_EQ(colors, 4 * 37);
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
