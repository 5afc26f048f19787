#include "TarnwickKit/views/capacity/CapacityMap.h"

#include "OndelCore/capacity/CapacityProgress.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/views/charts/PixelBlend.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace TarnwickKit::views {

using OndelCore::capacity::BlockState;

namespace {

std::vector<BlockState> statesOf(const QByteArray& cells) {
    std::vector<BlockState> states;
    states.reserve(static_cast<std::size_t>(cells.size()));
    for (const char cell : cells)
        states.push_back(static_cast<BlockState>(
            std::clamp(static_cast<int>(cell), 0, static_cast<int>(BlockState::writeFailed))));
    return states;
}

/// Draws one cell. What is wrong carries a mark in the ground's colour.
void paintCell(QPainter& painter, const QRectF& cell, BlockState state, const Palette& palette) {
    const auto fill = [&](const QRectF& part, const QColor& color) { painter.fillRect(part, color); };
    const auto outline = [&](const QColor& color) {
        painter.setPen(QPen(color, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(cell.adjusted(0.5, 0.5, -0.5, -0.5));
    };
    const double inset = cell.width() * 0.25;
    const QRectF inner = cell.adjusted(inset, inset, -inset, -inset);
    switch (state) {
    case BlockState::untouched:
        return outline(palette.text3);
    case BlockState::written: // half full
        outline(palette.teal);
        return fill(cell.adjusted(0, cell.height() / 2, 0, 0), palette.teal);
    case BlockState::verified:
        return fill(cell, palette.teal);
    case BlockState::wrong: // a cross
        fill(cell, palette.danger());
        painter.setPen(QPen(palette.panel, std::max(1.5, cell.width() / 7)));
        painter.drawLine(inner.topLeft(), inner.bottomRight());
        painter.drawLine(inner.topRight(), inner.bottomLeft());
        return;
    case BlockState::unreadable: // a bar
        fill(cell, palette.warning());
        return fill(inner.adjusted(0, inset * 0.6, 0, -inset * 0.6), palette.panel);
    case BlockState::writeFailed: // a hole
        fill(cell, palette.text);
        return fill(inner, palette.panel);
    }
}

} // namespace

MapGrid MapGrid::of(double width) {
    constexpr double wanted = 12;
    constexpr int cellsWanted = 640;
    constexpr int fewestRows = 8;
    constexpr int mostRows = 16;
    MapGrid grid;
    grid.columns = std::max(1, static_cast<int>((width + grid.gap) / (wanted + grid.gap)));
    grid.rows = std::clamp(cellsWanted / grid.columns, fewestRows, mostRows);
    grid.side = std::max(1.0, (width + grid.gap) / grid.columns - grid.gap);
    return grid;
}

CapacityMap::CapacityMap(QQuickItem* parent)
    : ImageItem(parent) {}

void CapacityMap::setCells(const QByteArray& cells) {
    const bool wasSign = m_cells.size() == 1;
    if (!take(m_cells, cells))
        return;
    if (wasSign != (cells.size() == 1))
        layOut();
    Q_EMIT changed();
}

void CapacityMap::geometryChange(const QRectF& to, const QRectF& from) {
    ImageItem::geometryChange(to, from);
    if (to.width() != from.width())
        layOut();
}

void CapacityMap::layOut() {
    const MapGrid grid =
        m_cells.size() == 1 ? MapGrid{.columns = 1, .rows = 1, .side = width()} : MapGrid::of(width());
    if (grid == std::exchange(m_grid, grid))
        return;
    setImplicitHeight(grid.height());
    redraw();
    Q_EMIT gridChanged();
}

/// The key must not be created before the engine has attached its data to the new item: both would be lost.
void CapacityMap::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemSceneChange && value.window && !m_key) {
        m_key = PaletteKey::of(this);
        connect(m_key, &PaletteKey::paletteChanged, this, &CapacityMap::redraw);
    }
    ImageItem::itemChange(change, value);
}

/// Cells begin and end at whole pixels, so that equal ones look equal.
OndelControls::ImageItem::Picture CapacityMap::paint(double scale) {
    const auto states = model::worstOf(statesOf(m_cells), static_cast<std::size_t>(m_grid.count()));
    QImage image(inPixels(size(), scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto edge = [scale](double place) { return std::round(place * scale); };
    for (int index = 0; index < m_grid.count(); ++index) {
        const int row = index / m_grid.columns;
        const double x = (index - row * m_grid.columns) * pitch();
        const double y = row * pitch();
        const QRectF cell(QPointF(edge(x), edge(y)), QPointF(edge(x + m_grid.side), edge(y + m_grid.side)));
        // With fewer states than cells each state has several of them.
        const auto place =
            static_cast<std::size_t>(index) * states.size() / static_cast<std::size_t>(m_grid.count());
        paintCell(painter, cell, states.empty() ? BlockState::untouched : states[place], m_key->palette());
    }
    return {image, {}};
}

} // namespace TarnwickKit::views
