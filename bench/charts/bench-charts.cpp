// What a throughput chart's picture costs, 800 by 200 with 2000 jagged points: painted anew, with one more
// point as a running test brings it fifty times a second, and stroked by QPainter for comparison. The
// argument is the screen's scale in percent.

#include "TarnwickKit/views/charts/ThroughputPicture.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

#include <random>

using namespace TarnwickKit::views;

namespace {

constexpr QSizeF canvas(800, 200);
constexpr int count = 2000;
const QColor line(0xff, 0x6b, 0x47);
const QColor fill(0xff, 0x6b, 0x47, 36);

ThroughputContent content() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> rate(300, 1200);
    ChartCurve curve{line, fill, {}};
    for (int i = 0; i < count; ++i)
        curve.points.append({i * 0.02, rate(random)});
    return {{curve}, {}, true, {}, QColor(0xeb, 0xe5, 0xda), QColor(0x65, 0x6c, 0x79), {}, {}};
}

double scaleOf(const benchmark::State& state) { return static_cast<double>(state.range(0)) / 100; }

void paintedAnew(benchmark::State& state) {
    const ThroughputContent chart = content();
    for ([[maybe_unused]] auto _ : state) {
        ThroughputPicture picture;
        const QImage image = picture.paint(chart, canvas, scaleOf(state));
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(paintedAnew)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

/// A running test: one more point, and from time to time only half of them.
void oneMorePoint(benchmark::State& state) {
    const ThroughputContent chart = content();
    ThroughputPicture picture;
    ThroughputContent shown = chart;
    ChartCurve& curve = shown.curves[0];
    curve.points = chart.curves[0].points.first(count / 2);
    QImage onScreen = picture.paint(shown, canvas, scaleOf(state));
    for ([[maybe_unused]] auto _ : state) {
        curve.unchanged = curve.points.size();
        if (curve.unchanged < count) {
            curve.points.append(chart.curves[0].points[curve.unchanged]);
        } else {
            curve.points = chart.curves[0].points.first(count / 2);
            curve.unchanged = 0;
        }
        onScreen = picture.paint(shown, canvas, scaleOf(state));
        benchmark::DoNotOptimize(onScreen.constBits());
    }
}
BENCHMARK(oneMorePoint)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

void strokedByPainter(benchmark::State& state) {
    const ThroughputContent chart = content();
    const double scale = scaleOf(state);
    const ThroughputPlot plot{canvas, ThroughputScale(largestOf(chart.curves[0].points), true)};
    for ([[maybe_unused]] auto _ : state) {
        QImage image((canvas * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        QPolygonF curve;
        for (const QPointF& point : chart.curves[0].points)
            curve << plot.map(point);
        QLinearGradient gradient(0, ThroughputPlot::top, 0, plot.floor());
        gradient.setColorAt(0, fill);
        gradient.setColorAt(1, QColor(fill.red(), fill.green(), fill.blue(), 0));
        QPainterPath area;
        area.addPolygon(QPolygonF(curve) << QPointF(curve.last().x(), plot.floor())
                                         << QPointF(curve.first().x(), plot.floor()));
        painter.fillPath(area, gradient);
        QPainterPath stroke;
        stroke.addPolygon(curve);
        painter.strokePath(
            stroke, QPen(line, ThroughputPicture::lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(strokedByPainter)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

} // namespace
