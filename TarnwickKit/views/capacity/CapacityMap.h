#pragma once

#include "OndelControls/ImageItem.h"
#include "TarnwickKit/views/style/PaletteKey.h"

#include <QByteArray>
#include <QQmlEngine>
#include <QSizeF>

namespace TarnwickKit::views {

/// How a map's cells stand: so many columns and rows of squares, with gaps between them.
/// Units: logical pixels.
struct MapGrid {
    int columns = 1;
    int rows = 1;
    double side = 1;
    double gap = 2;

    /// The cells fill the width. A narrow map has more rows than a wide one.
    static MapGrid of(double width);

    int count() const { return columns * rows; }
    double height() const { return rows * (side + gap) - gap; }

    bool operator==(const MapGrid&) const = default;
};

/// The range of a capacity check as a grid of cells, each with the worst state of what it stands for. States
/// differ in shape as well as in colour. With a single cell it is a sign in a legend.
class CapacityMap : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    /// One byte per cell of the check: the number of its BlockState.
    Q_PROPERTY(QByteArray cells MEMBER m_cells WRITE setCells NOTIFY changed)
    Q_PROPERTY(int columns READ columns NOTIFY gridChanged)
    Q_PROPERTY(int rows READ rows NOTIFY gridChanged)
    Q_PROPERTY(double pitch READ pitch NOTIFY gridChanged)

public:
    explicit CapacityMap(QQuickItem* parent = nullptr);

    void setCells(const QByteArray& cells);
    Q_SIGNAL void changed();
    int columns() const { return m_grid.columns; }
    int rows() const { return m_grid.rows; }
    double pitch() const { return m_grid.side + m_grid.gap; }
    Q_SIGNAL void gridChanged();

protected:
    Picture paint(double scale) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    void layOut();

    QByteArray m_cells;
    MapGrid m_grid;
    PaletteKey* m_key = nullptr;
};

} // namespace TarnwickKit::views
