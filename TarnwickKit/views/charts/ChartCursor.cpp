#include "TarnwickKit/views/charts/ChartCursor.h"

#include "TarnwickKit/model/format/Format.h"

namespace TarnwickKit::views {

void ChartCursor::setChart(ThroughputCanvas* chart) {
    if (chart == m_chart)
        return;
    if (m_chart)
        m_chart->disconnect(this);
    m_chart = chart;
    if (m_chart) {
        connect(m_chart, &ThroughputCanvas::summaryChanged, this, &ChartCursor::moved);
        connect(m_chart, &QQuickItem::widthChanged, this, &ChartCursor::moved);
        connect(m_chart, &QQuickItem::heightChanged, this, &ChartCursor::moved);
    }
    Q_EMIT chartChanged();
    leave();
}

double ChartCursor::x() const { return m_chart && m_time ? m_chart->plot().x(*m_time) : 0; }

QString ChartCursor::time() const { return m_time ? seconds(*m_time) : QString(); }

QVariantList ChartCursor::values() const {
    QVariantList values;
    if (!m_chart || !m_time)
        return values;
    const ThroughputPlot plot = m_chart->plot();
    for (const ChartSeries* series : m_chart->series())
        if (const auto rate = rateAt(series->points(), *m_time))
            values << QVariant::fromValue(ChartValue{
                .text = QStringLiteral("%1: %2").arg(
                    series->name(),
                    model::Format::leftToRight(model::Format::mbValue(*rate * 1e6) + u' ' + series->unit())),
                .color = series->color(),
                .y = plot.map({*m_time, *rate}).y()});
    return values;
}

QString ChartCursor::sentence() const {
    QStringList texts;
    for (const QVariant& value : values())
        texts << value.value<ChartValue>().text;
    return time() + QStringLiteral(": ") + texts.join(QStringLiteral(", "));
}

void ChartCursor::moveTo(double x) {
    if (!m_chart)
        return;
    const ThroughputPlot plot = m_chart->plot();
    setTime(times().nearest((x - ThroughputPlot::left) / plot.width() * plot.scale.xTop));
}

void ChartCursor::step(int points) {
    if (m_chart)
        setTime(m_time ? times().stepped(*m_time, points)
                       : times().nearest(points > 0 ? 0 : m_chart->plot().scale.xTop));
}

void ChartCursor::skip(double share) {
    if (m_chart)
        setTime(times().nearest(m_time.value_or(0) + share * m_chart->plot().scale.xTop));
}

void ChartCursor::leave() { setTime(std::nullopt); }

ChartTimes ChartCursor::times() const {
    QList<QList<QPointF>> curves;
    for (const ChartSeries* series : m_chart->series())
        curves << series->points();
    return ChartTimes(curves);
}

void ChartCursor::setTime(std::optional<double> time) {
    if (time == m_time)
        return;
    m_time = time;
    Q_EMIT moved();
}

} // namespace TarnwickKit::views
