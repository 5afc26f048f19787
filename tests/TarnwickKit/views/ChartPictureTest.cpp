#include "TarnwickKit/views/charts/Sparkline.h"
#include "TarnwickKit/views/charts/ThroughputPicture.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QBitmap>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <random>

using namespace TarnwickKit::views;

namespace {

constexpr QSizeF canvas(400, 200);
const QColor ink(0xff, 0x6b, 0x47);
const QColor pale(0xff, 0x6b, 0x47, 90);

QList<QPointF> jagged(int count, double seconds) {
    std::mt19937 random(5);
    std::uniform_real_distribution<double> rate(100, 950);
    QList<QPointF> points;
    for (int i = 0; i < count; ++i)
        points.append({seconds * i / (count - 1), rate(random)});
    return points;
}

ThroughputContent chart(std::vector<QList<QPointF>> curves, bool live = false) {
    ThroughputContent content;
    for (const auto& points : curves)
        content.curves.push_back({ink, pale, points});
    content.live = live;
    content.grid = content.label = Qt::transparent;
    return content;
}

QImage painted(const ThroughputContent& content, double scale = 1) {
    return ThroughputPicture().paint(content, canvas, scale);
}

/// The same chart drawn by QPainter.
QImage reference(const QList<QPointF>& points, double scale) {
    QImage image((canvas * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const ThroughputPlot plot{canvas, ThroughputScale(largestOf(points), false)};
    QPolygonF line;
    double highest = plot.floor();
    for (const QPointF& point : points) {
        line << plot.map(point);
        highest = std::min(highest, line.last().y());
    }
    QLinearGradient gradient(0, highest, 0, plot.floor());
    gradient.setColorAt(0, pale);
    gradient.setColorAt(1, QColor(pale.red(), pale.green(), pale.blue(), 0));
    QPainterPath area;
    area.addPolygon(QPolygonF(line) << QPointF(line.last().x(), plot.floor())
                                    << QPointF(line.first().x(), plot.floor()));
    area.setFillRule(Qt::WindingFill);
    painter.fillPath(area, gradient);
    QPainterPath stroke;
    stroke.addPolygon(line);
    painter.strokePath(stroke,
                       QPen(ink, ThroughputPicture::lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    return image;
}

TEST(ThroughputPicture, LooksAsAPainterWouldDrawIt) {
    const QList<QPointF> cases[] = {
        {{0, 100}, {4, 900}},
        {{0, 500}, {1, 500}, {4, 500}},
        {{0, 100}, {1, 900}, {2, 120}, {2, 700}, {4, 30}}, // a jump
        {{0, 100}, {3, 900}, {1, 300}, {4, 600}},          // backwards in time
        {{2, 100}, {2, 900}, {2, 300}},                    // all at one time
        jagged(60, 4),
    };
    for (const auto& points : cases)
        for (const double scale : {1.0, 1.5, 2.0})
            EXPECT_LT(test::distance(painted(chart({points}), scale), reference(points, scale)), 3.2)
                << points.size() << " points at " << scale;
}

TEST(ThroughputPicture, DoesNotDependOnHowPointsArrive) {
    const QList<QPointF> all = jagged(500, 22);
    ThroughputPicture growing;
    qsizetype before = 0;
    const auto grow = [&](qsizetype count) {
        ThroughputContent content = chart({all.first(count)}, true);
        content.curves[0].unchanged = std::exchange(before, count);
        return growing.paint(content, canvas, 1.5);
    };
    for (qsizetype count = 0; count <= all.size(); count += count % 7 + 1)
        EXPECT_EQ(grow(count), painted(chart({all.first(count)}, true), 1.5)) << count;
    EXPECT_EQ(grow(all.size()), painted(chart({all}, true), 1.5));

    // A thinned list does not continue the one before.
    QList<QPointF> thinned;
    for (qsizetype i = 0; i < all.size(); i += 2)
        thinned.append(all[i]);
    EXPECT_EQ(growing.paint(chart({thinned}, true), canvas, 1.5), painted(chart({thinned}, true), 1.5));
    EXPECT_EQ(growing.paint(chart({}, true), canvas, 1.5), painted(chart({}, true), 1.5));
}

TEST(ThroughputPicture, LinesLieAboveAllAreas) {
    ThroughputContent content = chart({{{0, 900}, {4, 100}}, {{0, 100}, {4, 900}}});
    content.curves[1].color = Qt::blue;
    content.curves[1].fill = Qt::black; // opaque where the first line would be hidden
    const QImage image = painted(content);
    const ThroughputPlot plot{canvas, ThroughputScale(QPointF(4, 900), false)};
    const auto at = [&](double time, double rate) {
        return image.pixelColor(plot.map({time, rate}).toPoint());
    };
    EXPECT_EQ(at(3, 300), ink);
    EXPECT_EQ(at(1, 300), QColor(Qt::blue));
    EXPECT_GT(at(2, 500).blue(), 200); // the later above the earlier
}

TEST(ThroughputPicture, LabelsOfAnyLengthHaveRoom) {
    for (const double peak : {950.0, 9e5, 3.2e6, 4.5e8, 7.7e12, 6e17}) {
        ThroughputContent content = chart({{{0, peak}, {1, peak}}});
        content.label = Qt::black;
        const QImage labels = painted(content, 2).copy(0, 0, 72, 30); // the largest, at the top
        const auto drawn = QBitmap::fromImage(labels.createAlphaMask());
        const QRect taken = QRegion(drawn).boundingRect();
        EXPECT_GT(taken.left(), 0) << peak;
        EXPECT_NEAR(taken.right(), 71, 3) << peak;
    }
}

TEST(ThroughputPicture, ASinglePointOnlyWidensTheAxes) {
    EXPECT_EQ(painted(chart({{{3, 400}}})), painted(chart({})));
    const QList<QPointF> curve{{0, 100}, {1, 100}};
    EXPECT_NE(painted(chart({curve, {{2, 100}}})), painted(chart({curve})));
}

TEST(ThroughputPicture, EndsButtAndTurnsRound) {
    const QImage image = painted(chart({{{0, 500}, {4, 500}}}), 2);
    const ThroughputPlot plot{canvas, ThroughputScale(QPointF(4, 500), false)};
    const QPoint start = (plot.map({0, 500}) * 2).toPoint();
    EXPECT_EQ(image.pixelColor(start.x() - 1, start.y()).alpha(), 0);
    EXPECT_EQ(image.pixelColor(start.x() + 1, start.y()).alpha(), 255);
}

TEST(ThroughputPicture, WithstandsStrangeFigures) {
    const double huge = 1e305;
    const QList<QPointF> cases[] = {
        {{0, 0}, {0, 0}},
        {{0, -50}, {1, -50}},
        {{-5, 3}, {-1, 4}},
        {{0, huge}, {huge, 0}},
        {{-huge, 1}, {huge, huge}},
        {{0, -huge}, {1, huge}},
        {{0, 1}, {0, 1}, {1e-300, 1}},
    };
    for (const auto& points : cases)
        for (const bool live : {false, true})
            EXPECT_FALSE(painted(chart({points}, live)).isNull());
    ThroughputPicture small;
    for (const QSizeF size : {QSizeF(1, 1), QSizeF(30, 10), QSizeF(50, 28)})
        EXPECT_EQ(small.paint(chart({jagged(9, 2)}), size, 1).size(), size.toSize());
}

TEST(ThroughputScale, TopsAndLabels) {
    struct Case {
        std::optional<QPointF> largest;
        bool live;
        double xTop;
        double yTop;
        std::vector<QString> times;
        std::vector<std::int64_t> rates;
    };
    const std::vector<std::int64_t> thousand{1000, 800, 600, 400, 200, 0};
    const Case cases[] = {
        {std::nullopt, false, 1, 1000, {"0s", "0.50s", "1s"}, thousand},
        {std::nullopt, true, 5, 1000, {"0s", "2s", "5s"}, thousand},
        {QPointF(0, 0), true, 5, 1000, {"0s", "2s", "5s"}, thousand},
        {QPointF(5, 3), true, 5, 100, {"0s", "2s", "5s"}, {100, 80, 60, 40, 20, 0}},
        {QPointF(5.1, 400), true, 10, 400, {"0s", "5s", "10s"}, {400, 320, 240, 160, 80, 0}},
        {QPointF(0.3, 400.1), false, 0.3, 500, {"0s", "0.15s", "0.30s"}, {500, 400, 300, 200, 100, 0}},
        {QPointF(7.25, 2000), false, 7.25, 2000, {"0s", "3s", "7.3s"}, {2000, 1600, 1200, 800, 400, 0}},
        {QPointF(0, 2000.5), false, 0.05, 3000, {"0s", "0.03s", "0.05s"}, {3000, 2400, 1800, 1200, 600, 0}},
        {QPointF(2, 2500), false, 2, 3000, {"0s", "1s", "2s"}, {3000, 2400, 1800, 1200, 600, 0}},
        {QPointF(61, -4), false, 61, 1000, {"0s", "30s", "61s"}, thousand},
    };
    for (const Case& c : cases) {
        const ThroughputScale scale(c.largest, c.live);
        SCOPED_TRACE(testing::Message() << c.xTop << " " << c.yTop);
        EXPECT_DOUBLE_EQ(scale.xTop, c.xTop);
        EXPECT_DOUBLE_EQ(scale.yTop, c.yTop);
        for (std::size_t i = 0; i < c.times.size(); ++i)
            EXPECT_EQ(seconds(scale.xLabels()[i]), c.times[i]);
        EXPECT_TRUE(std::ranges::equal(scale.yLabels(), c.rates));
    }
}

TEST(ThroughputScale, LabelsOfATopThatFiveDoesNotDivideLoseTheirFraction) {
    ThroughputScale scale(std::nullopt, false);
    scale.yTop = 1e300;
    EXPECT_GT(scale.yLabels()[0], 0); // a number from a strange file
    scale.yTop = 7;
    EXPECT_EQ(scale.yLabels()[1], 5);
}

TEST(ThroughputScale, Times) {
    const std::pair<double, const char*> cases[] = {
        {0, "0s"},      {0.999, "1.00s"}, {0.005, "0.01s"}, {1, "1s"},           {1.04, "1s"},
        {1.25, "1.3s"}, {9.96, "10s"},    {12.5, "12.5s"},  {86400.0, "86400s"},
    };
    for (const auto& [time, text] : cases)
        EXPECT_EQ(seconds(time), QLatin1String(text)) << time;
}

TEST(ThroughputScale, PointsFillThePlot) {
    const auto first = largestOf({{0, 10}, {4, 90}});
    const ThroughputPlot plot{{800, 200}, ThroughputScale(largestOf({{9, 200}, {8, 100}}, 1, first), false)};
    EXPECT_EQ(plot.map({0, 0}), QPointF(42, 180));
    EXPECT_EQ(plot.map({8, 100}), QPointF(792, 8)); // a lone point has counted
    EXPECT_EQ(plot.gridLine(5), plot.floor());
    EXPECT_EQ(largestOf({}, 0, first), QPointF(4, 90));
    EXPECT_FALSE(largestOf({}));
}

TEST(SparklineScale, NeitherAxisEndsBelowOne) {
    const SparklineScale slow({100, 40}, {{0, 0.1}, {0.5, 0.3}});
    EXPECT_EQ(slow.map({0.5, 0.5}), QPointF(50, 20));
    const SparklineScale fast({100, 40}, {{0, 100}, {10, 50}});
    EXPECT_NEAR(fast.map({0, 100}).y(), 40 * (1 - 1 / 1.1), 1e-9);
    EXPECT_DOUBLE_EQ(fast.map({10, 50}).x(), 100);
}

TEST(Sparkline, IsDrawnFromEdgeToEdgeWithRoundEnds) {
    QImage image = sparklineCanvas({40, 20}, 2);
    EXPECT_EQ(image.size(), QSize(88, 48));
    const QImage empty = image;
    paintSparkline(image, {{3, 400}}, ink, {40, 20}, 2);
    EXPECT_EQ(image, empty);
    paintSparkline(image, {{0, 0}, {7, 0}}, ink, {40, 20}, 2);
    EXPECT_EQ(image.pixelColor(4, 44).alpha(), 255);
    EXPECT_EQ(image.pixelColor(2, 44).alpha() > 100, true); // the cap beyond the frame
    EXPECT_EQ(image.pixelColor(1, 44).alpha(), 0);
    EXPECT_EQ(image.pixelColor(83, 44).alpha(), 255);
}

} // namespace
