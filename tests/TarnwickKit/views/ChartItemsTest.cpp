#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/charts/ThroughputCanvas.h"
#include "TarnwickKit/views/style/Palette.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QScreen>

using namespace TarnwickKit::views;
using TarnwickKit::model::RunRecord;

namespace {

RunRecord run() {
    RunRecord record;
    for (int i = 0; i < 20; ++i) {
        record.writeSamples.push_back({i * 0.1, 4e8 + i * 1e6});
        record.readSamples.push_back({i * 0.2, 9e8 - i * 2e7});
    }
    return record;
}

bool shows(const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

TEST(RunChart, ShowsBothCurvesOfItsRun) {
    test::Stage stage("RunChart { width: 500; height: 270 }", {{"run", QVariant::fromValue(run())}});
    const QImage image = stage.picture();
    EXPECT_TRUE(shows(image, Palette::light().coral));
    EXPECT_TRUE(shows(image, Palette::light().teal));

    const auto* chart = stage.root().findChild<ThroughputCanvas*>();
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->height(), 200);
    EXPECT_EQ(chart->summary(), QStringLiteral("Read: 520 to 900 MB/s over 3.8s, last 520 MB/s. "
                                               "Write: 400 to 419 MB/s over 1.9s, last 419 MB/s."));
}

TEST(DualSparkline, ShowsWriteAboveRead) {
    RunRecord record = run();
    record.readSamples = record.writeSamples;
    test::Stage stage("DualSparkline { width: 96; height: 34 }", {{"run", QVariant::fromValue(record)}});
    const QImage image = stage.picture(2);
    EXPECT_TRUE(shows(image, Palette::light().coral));
    EXPECT_FALSE(shows(image, Palette::light().teal));
}

TEST(TarnwickChart, ChoosesItsOwnPalette) {
    const QVariant points = QVariant::fromValue(QList<QPointF>{{0, 300}, {2, 500}});
    for (const bool dark : {false, true}) {
        test::Stage stage(
            "TarnwickChart { width: 300; height: 200; live: true }",
            {{"dark", dark}, {"write", points}, {"read", QVariant::fromValue(QList<QPointF>())}});
        const Palette& palette = dark ? Palette::dark() : Palette::light();
        EXPECT_TRUE(shows(stage.picture(), palette.coral));
        EXPECT_FALSE(shows(stage.picture(), palette.teal));
    }
}

TEST(ThroughputChart, TellsOfALiveCurveOnceInASecond) {
    test::Stage stage(
        "ThroughputChart { width: 300; height: 200; live: true; ChartSeries { name: \"Write\" } }");
    auto* chart = qobject_cast<ThroughputCanvas*>(&stage.root());
    auto* series = chart->findChild<ChartSeries*>();
    EXPECT_EQ(chart->summary(), QStringLiteral("No measurements yet."));
    QList<QPointF> points;
    int told = 0;
    QObject::connect(chart, &ThroughputCanvas::summaryChanged, chart, [&told] { ++told; });
    for (int i = 0; i < 150; ++i) {
        points.append({i * 0.02, 100});
        series->setPoints(points);
    }
    EXPECT_LE(told, 3);
    EXPECT_GE(told, 2);
}

TEST(ThroughputChart, DrawsAppendedPointsLikeAWholeCurve) {
    const QByteArray chart =
        "ThroughputChart { width: 300; height: 200; live: true; ChartSeries { color: 'red' } }";
    QList<QPointF> points;
    for (int i = 0; i < 60; ++i)
        points.append({i * 0.1, 100.0 + 97 * (i % 9)});
    const auto whole = [&](const QList<QPointF>& all) {
        test::Stage stage(chart);
        stage.root().findChild<ChartSeries*>()->setPoints(all);
        return stage.picture();
    };
    test::Stage stage(chart);
    auto* series = stage.root().findChild<ChartSeries*>();
    for (qsizetype count = 0; count < points.size(); count += 6) {
        series->append(points.mid(count, 6));
        EXPECT_EQ(stage.picture(), whole(points.first(count + 6))) << count;
    }
    points[30].setY(300); // as long as before, and with the same end
    series->setPoints(points);
    EXPECT_EQ(stage.picture(), whole(points));
}

TEST(ThroughputChart, DrawsTemperaturesOnAScaleOfTheirOwn) {
    const auto chart = [](double rate, const QList<QPointF>& temperatures) {
        return std::make_unique<test::Stage>(
            "ThroughputChart { width: 300; height: 228; live: true; temperatureColor: 'blue'\n"
            "ChartSeries { points: [Qt.point(0, " +
                QByteArray::number(rate) + "), Qt.point(4, 10)] } }",
            QVariantMap{{"temperatures", QVariant::fromValue(temperatures)}});
    };
    const QPoint at60(100, 8 + 80); // the plot begins at 8 and is 200 high
    EXPECT_FALSE(shows(chart(100, {})->picture(), Qt::blue));
    for (const double rate : {100.0, 9000.0}) {
        const QImage image = chart(rate, {{0, 60}, {4, 60}})->picture();
        const QColor middle = image.pixelColor(at60);
        EXPECT_GT(middle.blue(), middle.red() + 60) << rate;
        EXPECT_LT(image.pixelColor(at60 + QPoint(0, 5)).blue(), 60) << rate;
    }
    // Nothing is drawn beyond the plot, and what comes with a later sample looks as if it had been there.
    const QImage beyond = chart(100, {{0, 150}, {2, -30}, {99, 400}})->picture();
    EXPECT_EQ(beyond.copy(0, 0, 300, 7), chart(100, {})->picture().copy(0, 0, 300, 7));
    const auto grown = chart(100, {{0, 60}});
    grown->picture();
    const QList<QPointF> both{{0, 60}, {4, 80}};
    grown->root().setProperty("temperatures", QVariant::fromValue(both));
    EXPECT_EQ(grown->picture(), chart(100, both)->picture());
    grown->root().setProperty("temperatures", QVariant::fromValue(QList<QPointF>()));
    EXPECT_EQ(grown->picture(), chart(100, {})->picture());
}

TEST(ThroughputChart, IsNotPaintedOutOfSight) {
    test::Stage stage(R"(Item { width: 300; height: 100; clip: true
        Item { objectName: "content"; height: 1000
            ThroughputChart { live: true; width: 300; height: 100; ChartSeries { color: "red" } } } })");
    auto* content = stage.root().findChild<QQuickItem*>(QStringLiteral("content"));
    auto* series = stage.root().findChild<ChartSeries*>();
    EXPECT_FALSE(shows(stage.picture(), Qt::red));
    content->setY(-500);
    stage.picture();
    series->setPoints({{0, 400}, {1, 400}});
    stage.picture();
    content->setY(0);
    EXPECT_FALSE(shows(stage.picture(), Qt::red)); // the picture from before it left the view
    series->setPoints({{0, 400}, {1, 400}, {2, 400}});
    EXPECT_TRUE(shows(stage.picture(), Qt::red));
}

TEST(Symbol, FollowsTheScreensScale) {
    const QByteArray symbol =
        "Symbol { width: 20; height: 20; name: \"stop.fill\"; size: 14; color: \"#204060\" }";
    test::Stage stage(symbol);
    for (const double scale : {1.0, 2.0, 1.5}) {
        stage.picture(scale);
        Q_EMIT stage.root().window()->screen()->physicalDotsPerInchChanged(96 * scale); // as on a new screen
        const QImage image = stage.picture(scale);
        EXPECT_EQ(image, test::Stage(symbol).picture(scale)) << scale;
        EXPECT_EQ(image.pixelColor(image.rect().center()), QColor(0x20, 0x40, 0x60));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    }
}

} // namespace
