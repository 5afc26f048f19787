#include "OndelControls/CardTile.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QBitmap>
#include <QRegion>

#include <gtest/gtest.h>

using namespace OndelControls;

namespace {

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

TEST(ContinuousRectangle, KeepsWithinItsFrame) {
    for (const double radius : {0.0, 3.0, 6.0, 8.0, 9.0, 40.0}) {
        const QRectF frame(2, 3, 18, 18);
        const QPainterPath path = continuousRectangle(frame, radius);
        EXPECT_TRUE(frame.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(path.boundingRect())) << radius;
        EXPECT_TRUE(path.contains(frame.center()));
        EXPECT_EQ(path.contains(frame.topLeft() + QPointF(0.2, 0.2)), radius < 1) << radius;
    }
}

} // namespace
