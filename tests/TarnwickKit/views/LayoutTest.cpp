// What views are made of: layout, objects made on demand, cards, symbols and fonts.

#include "OndelControls/CardTile.h"
#include "OndelControls/OnDemand.h"
#include "OndelControls/SymbolTable.h"
#include "OndelControls/ViewMath.h"
#include "TarnwickKit/views/capacity/CapacityMap.h"
#include "TarnwickKit/views/sharing/CardView.h"
#include "TarnwickKit/views/style/FlowLayout.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"
#include "TarnwickKit/views/style/Typeface.h"
#include "TarnwickKit/views/window/Appearance.h"
#include "TarnwickKit/views/window/WindowPlace.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QBitmap>
#include <QCoreApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPointer>
#include <QRegion>

#include <set>

using namespace TarnwickKit::views;
using namespace OndelControls;

namespace {

TEST(ViewMath, LeavesWhatOthersAndTheirGapsDoNotTake) {
    EXPECT_EQ(ViewMath::roomBeside(300, {}, 12), 300);
    EXPECT_EQ(ViewMath::roomBeside(300, {8, 30, 104.5}, 12), 121.5);
}

TEST(ViewMath, MovesItemsTogetherBeforeTheyWrap) {
    struct Case {
        double width, taken;
        int count;
        double spacing;
    };
    const Case cases[] = {
        {400, 100, 4, 22}, // room to spare
        {166, 100, 4, 22}, // fits to the last pixel
        {165, 100, 4, 21}, // whole pixels
        {136, 100, 4, 12}, // as close as they may
        {135, 100, 4, 22}, // they wrap
        {50, 100, 1, 22},  // no gap
        {50, 0, 0, 22},
    };
    for (const Case& c : cases)
        EXPECT_EQ(ViewMath::spacingInLine(c.width, c.taken, c.count, 22, 12), c.spacing)
            << c.width << " " << c.count;
}

TEST(ViewMath, FindsAValue) {
    EXPECT_EQ(ViewMath::lastIndexOf({4096, 65536, 4096}, 4096), 2);
    EXPECT_EQ(ViewMath::lastIndexOf({4096, 65536}, 512), -1);
}

TEST(WindowPlace, IsRestoredWhereAScreenStillIs) {
    const QRect screen(0, 0, 1920, 1040), left(-1280, 0, 1280, 1024);
    struct Case {
        const char* what;
        std::optional<QPoint> kept;
        QList<QRect> screens;
        bool isRestored;
        QSize size;
    };
    const QSize kept(1180, 780);
    const Case cases[] = {
        {"no place", std::nullopt, {screen}, false, kept},
        {"whole", QPoint(100, 50), {screen}, true, kept},
        {"on the second screen", QPoint(-1200, 10), {screen, left}, true, kept},
        {"on a screen that is gone", QPoint(-1200, 10), {screen}, false, kept},
        {"a corner is left", QPoint(1840, 1016), {screen}, true, kept},
        {"too little of it", QPoint(1841, 1016), {screen}, false, kept},
        {"its upper edge above", QPoint(100, -1), {screen}, false, kept},
        {"larger than the screen", QPoint(0, 0), {QRect(0, 0, 1024, 600)}, true, {1024, 600}},
        {"nowhere, and larger", QPoint(5000, 0), {QRect(0, 0, 1024, 600)}, false, {1024, 600}},
    };
    for (const Case& c : cases) {
        const FittingPlace place = fittingPlace(kept, c.kept, c.screens);
        EXPECT_EQ(place.position, c.isRestored ? c.kept : std::nullopt) << c.what;
        EXPECT_EQ(place.size, c.size) << c.what;
    }
}

TEST(MapGrid, FillsTheWidthWithSomeHundredCells) {
    for (const double width : {0.5, 12.0, 200.0, 304.0, 867.0, 1600.0, 3500.0}) {
        const MapGrid grid = MapGrid::of(width);
        EXPECT_NEAR(grid.columns * (grid.side + grid.gap) - grid.gap, std::max(1.0, width), 1e-6) << width;
        EXPECT_GE(grid.rows, 8);
        EXPECT_LE(grid.rows, 16);
        if (width >= 200) {
            EXPECT_GE(grid.side, 12) << width;
            EXPECT_GE(grid.count(), 200) << width;
        }
    }
}

TEST(FlowLayout, Wraps) {
    struct Case {
        std::vector<QSizeF> children;
        double width;
        QList<QPointF> places;
        double height;
    };
    const Case cases[] = {
        {{}, 240, {}, 0},
        {{{60, 20}, {50, 30}}, 116, {{0, 0}, {66, 0}}, 30},  // fits to the last pixel
        {{{60, 20}, {50, 30}}, 115, {{0, 0}, {0, 26}}, 56},  // and one less
        {{{300, 20}, {10, 10}}, 100, {{0, 0}, {0, 26}}, 36}, // over-long, alone
        {{{10, 10}, {300, 20}, {10, 10}}, 100, {{0, 0}, {0, 16}, {0, 42}}, 52},
        {{{40, 10}, {40, 24}, {40, 12}}, 90, {{0, 0}, {46, 0}, {0, 30}}, 42},
    };
    for (const Case& c : cases) {
        const Flow flow = flowLayout(c.children, c.width, 6);
        EXPECT_EQ(flow.places, c.places);
        EXPECT_EQ(flow.height, c.height);
    }
}

TEST(FlowLayout, FollowsItsChildrenAndItsWidth) {
    test::Stage stage(R"(FlowLayout {
        spacing: 5
        Repeater { model: 3; Item { width: 100; height: 10 } }
        Item { visible: false; width: 50; height: 50 }
        Item { objectName: "last"; width: 30; height: 10 }
    })");
    const auto* last = stage.root().findChild<QQuickItem*>(QStringLiteral("last"));
    stage.picture();
    EXPECT_EQ(stage.root().implicitWidth(), 240); // while none is given
    EXPECT_EQ(last->position(), QPointF(105, 15));
    EXPECT_EQ(stage.root().implicitHeight(), 25);
    stage.root().setWidth(400);
    stage.picture();
    EXPECT_EQ(last->position(), QPointF(315, 0));
    EXPECT_EQ(stage.root().implicitHeight(), 10);
}

/// The object stands beside its maker, knows the ids of its file, and is deleted when it is no longer wanted.
TEST(OnDemand, MakesItsObjectWhileItIsActive) {
    test::Stage stage("Column { id: column; width: 70; height: 40\n"
                      "  OnDemand { Item { width: column.width; height: 20 } }\n"
                      "  OnDemand { file: 'qrc:/qt/qml/OndelControls/Separator.qml'; active: true\n"
                      "    given: ({ objectName: 'given', visible: false }) } }");
    EXPECT_TRUE(stage.root().findChild<QQuickItem*>(QStringLiteral("given")));
    auto* maker = qobject_cast<OndelControls::OnDemand*>(stage.root().childItems().constFirst());
    ASSERT_TRUE(maker);
    EXPECT_EQ(maker->object(), nullptr);
    for (int round = 0; round < 2; ++round) {
        maker->setActive(true);
        const QPointer<QObject> made = maker->object();
        const auto* item = qobject_cast<QQuickItem*>(made);
        ASSERT_TRUE(item);
        EXPECT_EQ(item->parentItem(), &stage.root());
        EXPECT_EQ(item->size(), QSizeF(70, 20));
        stage.picture();
        EXPECT_EQ(stage.root().implicitHeight(), 20);

        maker->setActive(false);
        EXPECT_EQ(maker->object(), nullptr);
        stage.picture();
        EXPECT_EQ(stage.root().implicitHeight(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(made.isNull());
    }
}

CardLook raised() {
    CardLook look;
    look.radius = 15;
    look.color = Qt::white;
    look.outline = QColor(0xe7, 0xe1, 0xd6);
    look.shadow = QColor(0x14, 0x3c, 0x5a, 26);
    look.shadowRadius = 22;
    look.shadowOffset = 16;
    return look;
}

TEST(CardTile, IsSmallHoweverLargeTheCard) {
    const CardTile small = cardTile(raised(), {400, 300}, 1);
    const CardTile large = cardTile(raised(), {3000, 1800}, 1);
    EXPECT_EQ(small.image.cacheKey(), large.image.cacheKey());
    EXPECT_LT(small.image.width(), 210);
    EXPECT_EQ(small.outside, QMargins(33, 17, 33, 49));
}

TEST(CardTile, IsNotStretchedWhereItCannotBe) {
    EXPECT_EQ(cardTile(raised(), {600, 60}, 1).image.height(), 60 + 17 + 49);
    CardLook gradient = raised();
    gradient.endColor = Qt::blue;
    EXPECT_EQ(cardTile(gradient, {300, 200}, 1).image.width(), 300 + 66);
}

/// A card assembled from a tile's pieces looks like one that is painted whole.
TEST(Card, ShowsNoSeams) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        test::Stage stage(R"(Item { width: 480; height: 400
            Card { x: 40; y: 40; width: 400; height: 300; radius: 15; color: "white"; outline: "#e7e1d6"
                   shadowColor: "#1a143c5a"; shadowRadius: 22; shadowOffset: 16 } })");
        const QImage image = stage.picture(scale);
        const auto pixel = [&](double x, double y) {
            return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
        };
        for (double x = 110; x < 370; x += 0.5) {
            EXPECT_EQ(pixel(x, 341), pixel(240, 341)) << x << " at " << scale; // the shadow below
            EXPECT_EQ(pixel(x, 40), pixel(240, 40)) << x << " at " << scale;   // the outline above
        }
        EXPECT_EQ(pixel(240, 180), QColor(Qt::white));
        EXPECT_EQ(pixel(40, 180).red(), 0xe7);
        EXPECT_GT(pixel(240, 350).alpha(), pixel(240, 380).alpha());
        EXPECT_EQ(pixel(2, 2).alpha(), 0);
    }
}

TEST(Card, FollowsItsSizeAndLook) {
    test::Stage stage("Card { width: 200; height: 100; color: \"red\"; radius: 9 }");
    EXPECT_EQ(stage.picture().pixelColor(190, 50), QColor(Qt::red));
    stage.root().setProperty("color", QColor(Qt::blue));
    EXPECT_EQ(stage.picture().pixelColor(190, 50), QColor(Qt::blue));
    stage.root().setWidth(30);
    EXPECT_EQ(stage.picture().pixelColor(20, 50), QColor(Qt::blue));
    EXPECT_EQ(stage.picture().pixelColor(0, 0).alpha(), 0);
    stage.root().setWidth(300);
    EXPECT_EQ(stage.picture().pixelColor(290, 50), QColor(Qt::blue));
}

/// A card or a symbol looks the same to the pixel wherever its parent is moved.
TEST(Card, LiesOnWholePixels) {
    for (const char* piece : {"Card { x: 10; y: 10; width: 20; height: 10; radius: 3; outline: \"red\" }",
                              "Separator { x: 10; y: 10; width: 20; color: \"red\" }",
                              "Symbol { x: 10; y: 10; width: 15; height: 15; name: \"stop.fill\" }"})
        for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
            test::Stage stage("Item { width: 60; height: 60; Item { " + QByteArray(piece) + " } }");
            const auto shown = [&](double at) {
                stage.root().childItems().front()->setPosition({at, at});
                const QImage image = stage.picture(scale);
                const auto mask = QBitmap::fromImage(image.createAlphaMask());
                return image.copy(QRegion(mask).boundingRect());
            };
            const QImage first = shown(0);
            ASSERT_GT(first.width(), 10) << piece;
            for (const double at : {0.2, 1.0 / 3, 0.5, 0.8, 1.0, 7.5})
                EXPECT_EQ(shown(at), first) << piece << " at " << at << ", " << scale;
        }
}

int ink(const QImage& image) {
    int sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    return sum;
}

TEST(Symbols, EachHasADrawing) {
    const QStringList names =
        QStringLiteral(
            "chart.bar.xaxis checkmark checkmark.circle.fill checkmark.seal.fill "
            "checkmark.shield.fill chevron.down chevron.right chevron.up chevron.up.chevron.down "
            "circle ellipsis exclamationmark.octagon.fill exclamationmark.triangle.fill externaldrive "
            "externaldrive.connected.to.line.below folder "
            "gauge.with.dots.needle.bottom.50percent heart.fill info.circle internaldrive "
            "ladybug pencil play.fill sidebar.leading square.and.arrow.up stop.fill trash xmark")
            .split(u' ');
    std::set<QByteArray> drawings;
    for (const QString& symbol : names) {
        ASSERT_TRUE(isSymbol(symbol)) << symbol.toStdString();
        const QImage image = symbolImage(symbol, 32, Qt::red);
        EXPECT_GT(ink(image), 32 * 255) << symbol.toStdString();
        drawings.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(drawings.size(), static_cast<std::size_t>(names.size())); // no two alike
    EXPECT_FALSE(isSymbol(u"checkmark.circle"));
    EXPECT_FALSE(isSymbol(u""));
}

TEST(Symbols, TakeColorOpacityAndWeight) {
    const auto symbol = QStringLiteral("stop.fill");
    EXPECT_EQ(symbolImage(symbol, 20, QColor(1, 2, 3)).pixelColor(10, 10), QColor(1, 2, 3));
    EXPECT_EQ(symbolImage(symbol, 20, QColor(255, 0, 0, 128)).pixelColor(10, 10).alpha(), 128);
    const auto check = QStringLiteral("checkmark");
    EXPECT_GT(ink(symbolImage(check, 40, Qt::black, QFont::Bold)),
              ink(symbolImage(check, 40, Qt::black)) * 5 / 4);
}

TEST(Symbols, StandInEvenSquares) {
    for (const double size : {8.0, 9.0, 10.0, 11.0, 12.0, 13.0, 14.0, 15.0, 18.0, 30.0})
        EXPECT_EQ(symbolBox(size) % 2, 0) << size;
    EXPECT_EQ(symbolBox(30), 36);
}

TEST(Fonts, AreTheFamiliesAndWeightsThatTheyAreNamedBy) {
    EXPECT_EQ(QFontInfo(Typeface::display(16)).family(), QLatin1String("Space Grotesk"));
    EXPECT_EQ(QFontInfo(Typeface::mono(10.5)).family(), QLatin1String("IBM Plex Mono"));
    const QString text = QStringLiteral("Sequential Write");
    double width = 0;
    for (const int weight : {QFont::Normal, QFont::Medium, QFont::DemiBold}) {
        const QFont font = Typeface::text(12, weight);
        EXPECT_EQ(QFontInfo(font).family(), QLatin1String("Figtree"));
        EXPECT_GT(QFontMetricsF(font).horizontalAdvance(text), width) << weight;
        width = QFontMetricsF(font).horizontalAdvance(text);
    }
}

TEST(Fonts, TextScaleIsAppliedOnce) {
    struct Case {
        ScreenScale screen;
        std::optional<double> wanted;
        double scale;
    };
    constexpr bool onX11 = true;
    const Case cases[] = {
        {{}, std::nullopt, 1},
        {{}, 1.5, 1.5},
        {{onX11, 1, 1}, 1.5, 1.5},   // nothing has told X11's resolution
        {{onX11, 1.5, 1}, 1.5, 1},   // the toolkit has enlarged everything by it
        {{onX11, 1, 1.5}, 1.5, 1.5}, // the toolkit was told not to
        {{onX11, 1, 1.25}, std::nullopt, 1.25},
        {{onX11, 2, 1}, 1.25, 1},
        {{!onX11, 2, 1}, 1.25, 1.25}, // a compositor's scale contains no text scale
    };
    for (const auto& [screen, wanted, scale] : cases)
        EXPECT_DOUBLE_EQ(textScaleOn(screen, wanted), scale) << screen.applied << ' ' << wanted.value_or(0);
}

TEST(Fonts, TextScaleReachesViewsAndLeavesImages) {
    test::Stage stage(R"(Item { property font seen: Typeface.mono(10)
                                function grow(scale: real) { Metrics.textScale = scale } })");
    const auto pixels = [&] { return stage.root().property("seen").value<QFont>().pixelSize(); };
    EXPECT_EQ(pixels(), 10);
    QMetaObject::invokeMethod(&stage.root(), "grow", Q_ARG(double, 1.5));
    EXPECT_EQ(pixels(), 15);
    const auto card = newCard(QStringLiteral("ReportFooter"),
                              {{QStringLiteral("link"), QStringLiteral("a.b")}}, Palette::light());
    ASSERT_TRUE(card);
    for (const QQuickItem* item : test::itemsOf(*card))
        EXPECT_LE(item->property("font").value<QFont>().pixelSize(), 15); // -1 without one
}

TEST(Fonts, FiguresHaveOneWidth) {
    const QFontMetricsF metrics(Typeface::figures(18));
    for (const QChar digit : QStringLiteral("123456789"))
        EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'))
            << digit.toLatin1();
    EXPECT_EQ(metrics.height(), QFontMetricsF(Typeface::display(18)).height());
    EXPECT_EQ(metrics.horizontalAdvance(u','), QFontMetricsF(Typeface::display(18)).horizontalAdvance(u','));
}

} // namespace
