#pragma once

#include "OndelControls/ImageItem.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QQmlEngine>

namespace TarnwickKit::views {

/// The rates of a capacity check along its range: writing and reading on one scale, which begins at 0.
class RateCurves : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    /// Units: shares of the range, decimal megabytes per second.
    Q_PROPERTY(QList<QPointF> write MEMBER m_write WRITE setWrite NOTIFY changed)
    Q_PROPERTY(QList<QPointF> read MEMBER m_read WRITE setRead NOTIFY changed)
    Q_PROPERTY(QColor writeColor MEMBER m_writeColor WRITE setWriteColor NOTIFY changed)
    Q_PROPERTY(QColor readColor MEMBER m_readColor WRITE setReadColor NOTIFY changed)
    /// The highest rate.
    Q_PROPERTY(double highest READ highest NOTIFY changed)

public:
    using ImageItem::ImageItem;

    void setWrite(const QList<QPointF>& points);
    void setRead(const QList<QPointF>& points);
    void setWriteColor(const QColor& color);
    void setReadColor(const QColor& color);
    double highest() const;
    Q_SIGNAL void changed();

protected:
    Picture paint(double scale) override;

private:
    QList<QPointF> m_write;
    QList<QPointF> m_read;
    QColor m_writeColor;
    QColor m_readColor;
};

} // namespace TarnwickKit::views
