#pragma once

#include "OndelControls/ImageItem.h"
#include "TarnwickKit/views/charts/ChartSeries.h"
#include "TarnwickKit/views/charts/ThroughputPicture.h"

#include <QQmlListProperty>

namespace TarnwickKit::views {

/// A chart's text summary for assistive technology: time, range and last value of each curve.
QString throughputSummary(const QList<ChartSeries*>& series);

/// The curves and axes of a throughput chart. It is painted at most once per frame, however often its series
/// change; a live one is not painted while it is scrolled out of view.
class ThroughputCanvas : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    /// In drawing order.
    Q_PROPERTY(QQmlListProperty<TarnwickKit::views::ChartSeries> series READ seriesList CONSTANT)
    Q_CLASSINFO("DefaultProperty", "series")
    /// The time axis grows in steps of five seconds instead of ending with the last point.
    Q_PROPERTY(bool live READ isLive WRITE setLive NOTIFY liveChanged)
    Q_PROPERTY(QColor gridColor READ gridColor WRITE setGridColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor labelColor READ labelColor WRITE setLabelColor NOTIFY colorsChanged)
    /// The unit of the rates, written at their axis unless it is empty.
    Q_PROPERTY(QString axisUnit READ axisUnit WRITE setAxisUnit NOTIFY marksChanged)
    /// Shades the part of each curve that its sustained rate is taken from, and marks its peak and its lowest
    /// point. For charts that are not live.
    Q_PROPERTY(bool marked READ isMarked WRITE setMarked NOTIFY marksChanged)
    /// Of the marks' outline.
    Q_PROPERTY(QColor groundColor READ groundColor WRITE setGroundColor NOTIFY colorsChanged)
    /// How much larger than drawn the axes' labels are.
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY marksChanged)
    /// Drawn as a thin line on a scale of its own. Units: seconds and degrees Celsius.
    Q_PROPERTY(QList<QPointF> temperatures READ temperatures WRITE setTemperatures NOTIFY temperaturesChanged)
    Q_PROPERTY(QColor temperatureColor READ temperatureColor WRITE setTemperatureColor NOTIFY colorsChanged)
    /// While live it changes at most once per second.
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)

public:
    explicit ThroughputCanvas(QQuickItem* parent = nullptr);

    QQmlListProperty<ChartSeries> seriesList();
    /// Owner: the caller keeps `series`; its end removes it.
    void add(ChartSeries* series);
    const QList<ChartSeries*>& series() const { return m_series; }
    ThroughputPlot plot() const;
    bool isLive() const { return m_content.live; }
    void setLive(bool live);
    Q_SIGNAL void liveChanged();
    QColor gridColor() const { return m_content.grid; }
    void setGridColor(const QColor& color);
    QColor labelColor() const { return m_content.label; }
    void setLabelColor(const QColor& color);
    const QList<QPointF>& temperatures() const { return m_content.temperatures; }
    void setTemperatures(const QList<QPointF>& temperatures);
    Q_SIGNAL void temperaturesChanged();
    const QString& axisUnit() const { return m_content.axisUnit; }
    void setAxisUnit(const QString& unit);
    bool isMarked() const { return m_content.marked; }
    void setMarked(bool marked);
    double textScale() const { return m_content.textScale; }
    void setTextScale(double scale);
    Q_SIGNAL void marksChanged();
    QColor groundColor() const { return m_content.ground; }
    void setGroundColor(const QColor& color);
    QColor temperatureColor() const { return m_content.temperature; }
    void setTemperatureColor(const QColor& color);
    Q_SIGNAL void colorsChanged();
    QString summary() const { return throughputSummary(m_series); }
    Q_SIGNAL void summaryChanged();

protected:
    Picture paint(double scale) override;
    bool canWait() const override;

private:
    void seriesChanged();

    QList<ChartSeries*> m_series;
    ThroughputContent m_content;
    ThroughputPicture m_picture;
    double m_summarySecond = -1;
};

} // namespace TarnwickKit::views
