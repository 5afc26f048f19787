#include "TarnwickKit/views/sharing/SharedImage.h"

#include "support/TemporaryFolder.h"
#include "tests/TarnwickKit/model/ModelHarness.h"
#include "tests/TarnwickKit/views/Runs.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <gtest/gtest.h>

using namespace TarnwickKit::views;
using TarnwickKit::model::turnUntil;

namespace {

QByteArray copied() { return QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("image/png")); }

TEST(SharedImage, HandsOnTheImageThatWasMade) {
    SharedImage image;
    int made = 0;
    int told = 0;
    QObject::connect(&image, &SharedImage::ready, &image, [&made] { ++made; });
    QObject::connect(&image, &SharedImage::told, &image, [&told] { ++told; });

    const auto run = test::fullRun();
    image.makeReport(run, &Palette::light());
    image.makeComparison({{run, run}}, &Palette::light()); // ignored, since an image is being made
    turnUntil([&] { return made > 0; });
    image.copy();
    EXPECT_EQ(told, 1); // what it says depends on the platform: without a display nobody owns a clipboard
    const QImage report = QImage::fromData(copied(), "PNG");
    EXPECT_EQ(report.width(), 1616);
    EXPECT_EQ(report.pixelColor(70, 70), Palette::light().panel);

    image.makeComparison({{run, run}}, &Palette::dark());
    turnUntil([&] { return made > 1; });
    // Another image of the same name does not change what is shared.
    ASSERT_TRUE(ComparisonImage::render({run}, Palette::light()));
    image.copy();
    EXPECT_EQ(QImage::fromData(copied(), "PNG").pixelColor(70, 70), Palette::dark().panel);
    EXPECT_EQ(made, 2);
}

} // namespace
