#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/charts/ChartCursor.h"
#include "TarnwickKit/views/charts/ComparedSeries.h"
#include "TarnwickKit/views/charts/CurveReading.h"
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

TEST(CurveReading, AnswersWhatIsDrawn) {
    const QList<QPointF> curve{{1, 10}, {2, 30}, {4, 20}};
    const QList<QPointF> odd{{2, 7}, {2, 9}, {0, 1}}; // of a file
    const struct {
        QList<QPointF> points;
        double time;
        std::optional<double> rate;
    } cases[] = {{curve, 1, 10},   {curve, 1.5, 20}, {curve, 3, 25}, {curve, 4, 20},    {curve, 0.9, {}},
                 {curve, 4.1, {}}, {odd, 2, 9},      {odd, 1, 5},    {{{1, 5}}, 1, {}}, {{}, 0, {}}};
    for (const auto& c : cases)
        EXPECT_EQ(rateAt(c.points, c.time), c.rate) << c.time;

    EXPECT_EQ(SustainedPart::of(curve), (SustainedPart{4 * 2.0 / 3, 4}));
    EXPECT_EQ(SustainedPart::of({{0, 1}, {0, 2}}), std::nullopt);
    EXPECT_EQ(CurveExtremes::of({{1, 5}, {2, 9}, {3, 9}, {4, 2}, {5, 2}}), (CurveExtremes{{2, 9}, {4, 2}}));
    EXPECT_EQ(CurveExtremes::of({{1, 5}, {2, 5}}), std::nullopt);

    const ChartTimes times({curve, {{5, 1}, {2, 1}, {3, 1}}, {{100, 1}}});
    const struct {
        double time;
        double nearest, after, before;
    } steps[] = {{-9, 1, 1, 1}, {1, 1, 2, 1}, {2.6, 3, 3, 2}, {2.4, 2, 3, 2}, {5, 5, 5, 4}, {99, 5, 5, 5}};
    for (const auto& [time, nearest, after, before] : steps) {
        EXPECT_EQ(times.nearest(time), nearest) << time;
        EXPECT_EQ(times.stepped(time, 1), after) << time;
        EXPECT_EQ(times.stepped(time, -1), before) << time;
    }
    EXPECT_EQ(ChartTimes(QList<QList<QPointF>>()).stepped(1, 1), std::nullopt);
}

TEST(ChartCursor, MovesByPointerAndByPoint) {
    test::Stage stage("RunChart { width: 500; height: 270; isExplained: true }",
                      {{"run", QVariant::fromValue(run())}});
    stage.picture();
    auto* chart = stage.root().findChild<ThroughputCanvas*>();
    ChartCursor cursor;
    cursor.setChart(chart);
    EXPECT_FALSE(cursor.isActive());
    EXPECT_TRUE(cursor.values().isEmpty());
    const auto after = [&cursor](auto move) {
        move();
        return cursor.sentence();
    };
    // Writing has a point each tenth of a second and ends at 1.9 s, reading each other tenth until 3.8 s.
    EXPECT_EQ(after([&] { cursor.step(1); }), "0s: Read: 900 MB/s, Write: 400 MB/s");
    EXPECT_EQ(after([&] { cursor.step(1); }), "0.10s: Read: 890 MB/s, Write: 401 MB/s");
    EXPECT_EQ(after([&] { cursor.skip(1); }), "3.8s: Read: 520 MB/s");
    EXPECT_EQ(after([&] { cursor.step(-1); }), "3.6s: Read: 540 MB/s");
    EXPECT_EQ(after([&] { cursor.skip(-0.5); }), "1.7s: Read: 730 MB/s, Write: 417 MB/s");
    EXPECT_EQ(after([&] { cursor.moveTo(chart->plot().x(0.29)); }), "0.30s: Read: 870 MB/s, Write: 403 MB/s");
    EXPECT_DOUBLE_EQ(cursor.x(), chart->plot().x(0.3));
    cursor.leave();
    EXPECT_EQ(after([&] { cursor.step(-1); }), "3.8s: Read: 520 MB/s");
}

TEST(RunChart, IsMarkedInTheWindowAlone) {
    const auto picture = [](bool isExplained) {
        test::Stage stage("ThroughputChart { width: 500; height: 200; objectName: \"chart\"\n"
                          "RunSeries { color: 'red'; curve: RunSeries.Write } }",
                          {{"marked", isExplained}});
        stage.root().findChild<RunSeries*>()->setRun(run());
        return stage.picture();
    };
    const QImage plain = picture(false), marked = picture(true);
    const QPoint first(43, 150), last(490, 150), below(490, 181);
    EXPECT_EQ(marked.pixelColor(first), plain.pixelColor(first));
    EXPECT_NE(marked.pixelColor(last), plain.pixelColor(last)) << "the last third is shaded";
    EXPECT_EQ(marked.pixelColor(below + QPoint(0, 1)), QColor(Qt::red));
    EXPECT_NE(plain.pixelColor(below + QPoint(0, 1)), QColor(Qt::red));
    // Above the highest point, which is the last one, and below the lowest, the first one.
    const QPoint peak(492, int(8 + 172 * (1 - 419.0 / 500)) - 6),
        lowest(42, int(8 + 172 * (1 - 400.0 / 500)) + 6);
    for (const QPoint& place : {peak, lowest}) {
        EXPECT_EQ(marked.pixelColor(place), QColor(Qt::red));
        EXPECT_NE(plain.pixelColor(place), QColor(Qt::red));
    }
}

TEST(ComparedSeries, LaysTheRunsCurvesOverEachOther) {
    test::Stage stage("ThroughputChart { width: 500; height: 200 }");
    auto* chart = qobject_cast<ThroughputCanvas*>(&stage.root());
    RunRecord other = run();
    for (auto& sample : other.writeSamples)
        sample.v /= 2;
    {
        ComparedSeries compared;
        compared.setProperty("chart", QVariant::fromValue(chart));
        compared.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::blue}));
        compared.setProperty("runs", QVariant::fromValue(ComparedRuns{{run(), other, run()}}));
        ASSERT_EQ(chart->series().size(), 3);
        EXPECT_EQ(chart->series()[1]->points().last(), QPointF(1.9, 209.5));
        EXPECT_EQ(chart->series()[2]->color(), Qt::red) << "the colours begin anew";
        const QImage image = stage.picture();
        EXPECT_TRUE(shows(image, Qt::red) && shows(image, Qt::blue));
        compared.setProperty("curve", static_cast<int>(RunSeries::Read));
        EXPECT_EQ(chart->series()[0]->points().last(), QPointF(3.8, 520));
    }
    EXPECT_TRUE(chart->series().isEmpty());
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
