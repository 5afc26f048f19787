#include "OndelControls/OnDemand.h"

#include "tests/TarnwickKit/views/Pictures.h"

#include <QCoreApplication>
#include <QPointer>

#include <gtest/gtest.h>

namespace {

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
