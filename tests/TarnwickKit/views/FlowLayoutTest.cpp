#include "TarnwickKit/views/style/FlowLayout.h"

#include "tests/TarnwickKit/views/Pictures.h"

#include <gtest/gtest.h>

using namespace TarnwickKit::views;

namespace {

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

} // namespace
