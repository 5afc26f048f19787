// What places items: arithmetic, the wrapping layout, and objects made on demand.

#include "OndelControls/OnDemand.h"
#include "OndelControls/ViewMath.h"
#include "TarnwickKit/views/style/FlowLayout.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QCoreApplication>
#include <QPointer>

#include <gtest/gtest.h>

using namespace TarnwickKit::views;
using OndelControls::ViewMath;

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
                      "  OnDemand { Item { width: column.width; height: 20 } } }");
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

} // namespace
