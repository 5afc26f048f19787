#include "TarnwickKit/views/charts/ThroughputCanvas.h"

#include "TarnwickKit/model/format/Format.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace TarnwickKit::views {

namespace {

struct ThroughputText {
    Q_DECLARE_TR_FUNCTIONS(ThroughputText)
};

} // namespace

QString throughputSummary(const QList<ChartSeries*>& series) {
    const auto rate = [](double megabytes) { return model::Format::mbValue(megabytes * 1'000'000); };
    QStringList sentences;
    for (const ChartSeries* one : series) {
        const QList<QPointF>& points = one->points();
        if (points.isEmpty())
            continue;
        const auto [lowest, highest] = std::ranges::minmax(points, {}, &QPointF::y);
        //: Rates of a test: from %2 to %3 in the unit %6, during a time of %4, the last rate is %5
        sentences << ThroughputText::tr("%1: %2 to %3 %6 over %4, last %5 %6.")
                         .arg(one->name(), rate(lowest.y()), rate(highest.y()), seconds(points.last().x()),
                              rate(points.last().y()), one->unit());
    }
    return sentences.isEmpty() ? ThroughputText::tr("No measurements yet.")
                               : sentences.join(QLatin1Char(' '));
}

ThroughputCanvas::ThroughputCanvas(QQuickItem* parent)
    : ImageItem(parent) {
    setFlag(ItemObservesViewport);
}

QQmlListProperty<ChartSeries> ThroughputCanvas::seriesList() {
    using List = QQmlListProperty<ChartSeries>;
    static constexpr auto of = [](List* list) { return static_cast<ThroughputCanvas*>(list->object); };
    return {this,
            nullptr,
            [](List* list, ChartSeries* series) { of(list)->add(series); },
            [](List* list) { return of(list)->m_series.size(); },
            [](List* list, qsizetype index) { return of(list)->m_series.at(index); },
            nullptr};
}

void ThroughputCanvas::add(ChartSeries* series) {
    if (!series)
        return;
    m_series.append(series);
    connect(series, &ChartSeries::changed, this, &ThroughputCanvas::seriesChanged);
    connect(series, &QObject::destroyed, this, [this, series] {
        m_series.removeOne(series);
        seriesChanged();
    });
    seriesChanged();
}

void ThroughputCanvas::seriesChanged() {
    redraw();
    double latest = 0;
    for (const ChartSeries* series : std::as_const(m_series))
        if (!series->points().isEmpty())
            latest = std::max(latest, std::floor(series->points().last().x()));
    const bool isSameSecond = latest == std::exchange(m_summarySecond, latest);
    if (!isLive() || !isSameSecond)
        Q_EMIT summaryChanged();
}

void ThroughputCanvas::setLive(bool live) {
    if (take(m_content.live, live))
        Q_EMIT liveChanged();
}

void ThroughputCanvas::setGridColor(const QColor& color) {
    if (take(m_content.grid, color))
        Q_EMIT colorsChanged();
}

void ThroughputCanvas::setLabelColor(const QColor& color) {
    if (take(m_content.label, color))
        Q_EMIT colorsChanged();
}

void ThroughputCanvas::setAxisUnit(const QString& unit) {
    if (take(m_content.axisUnit, unit))
        Q_EMIT marksChanged();
}

void ThroughputCanvas::setMarked(bool marked) {
    if (take(m_content.marked, marked))
        Q_EMIT marksChanged();
}

void ThroughputCanvas::setTextScale(double scale) {
    if (take(m_content.textScale, scale))
        Q_EMIT marksChanged();
}

void ThroughputCanvas::setGroundColor(const QColor& color) {
    if (take(m_content.ground, color))
        Q_EMIT colorsChanged();
}

ThroughputPlot ThroughputCanvas::plot() const {
    std::optional<QPointF> largest;
    for (const ChartSeries* series : m_series)
        largest = largestOf(series->points(), 0, largest);
    return {size(), ThroughputScale(largest, isLive())};
}

void ThroughputCanvas::setTemperatures(const QList<QPointF>& temperatures) {
    if (take(m_content.temperatures, temperatures))
        Q_EMIT temperaturesChanged();
}

void ThroughputCanvas::setTemperatureColor(const QColor& color) {
    if (take(m_content.temperature, color))
        Q_EMIT colorsChanged();
}

/// A live chart that is scrolled back into view is updated by the next sample, a fraction of a second later.
bool ThroughputCanvas::canWait() const { return isLive() && clipRect().isEmpty(); }

OndelControls::ImageItem::Picture ThroughputCanvas::paint(double scale) {
    for (const ChartSeries* series : std::as_const(m_series))
        m_content.curves.push_back(series->curve());
    const QImage image = m_picture.paint(m_content, size(), scale);
    m_content.curves.clear(); // a second holder of the points would have each append copy them all
    for (ChartSeries* series : std::as_const(m_series))
        series->setPainted();
    return {image, {}};
}

} // namespace TarnwickKit::views
