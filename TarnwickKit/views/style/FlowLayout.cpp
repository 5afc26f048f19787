#include "TarnwickKit/views/style/FlowLayout.h"

#include <algorithm>

namespace TarnwickKit::views {

namespace {

/// A child without a size, such as a Repeater, takes no space.
bool isLaidOut(const QQuickItem& child) { return child.isVisible() && !child.size().isEmpty(); }

} // namespace

Flow flowLayout(const std::vector<QSizeF>& children, double width, double spacing,
                std::optional<double> lineSpacing) {
    Flow flow;
    double x = 0;
    double y = 0;
    double line = 0;
    for (const QSizeF& child : children) {
        if (x > 0 && x + child.width() > width) {
            y += line + lineSpacing.value_or(spacing);
            x = 0;
            line = 0;
        }
        flow.places.append({x, y});
        x += child.width() + spacing;
        line = std::max(line, child.height());
    }
    flow.height = y + line;
    return flow;
}

FlowLayout::FlowLayout(QQuickItem* parent)
    : QQuickItem(parent) {
    setImplicitWidth(proposedWidth);
}

void FlowLayout::setSpacing(double spacing) {
    if (spacing == m_spacing)
        return;
    m_spacing = spacing;
    polish();
    Q_EMIT spacingChanged();
}

void FlowLayout::setLineSpacing(double spacing) {
    if (spacing == m_lineSpacing)
        return;
    m_lineSpacing = spacing;
    polish();
    Q_EMIT spacingChanged();
}

void FlowLayout::setMirrored(bool mirrored) {
    if (mirrored == m_isMirrored)
        return;
    m_isMirrored = mirrored;
    polish();
    Q_EMIT spacingChanged();
}

void FlowLayout::follow(QQuickItem* child) {
    connect(child, &QQuickItem::widthChanged, this, &QQuickItem::polish);
    connect(child, &QQuickItem::heightChanged, this, &QQuickItem::polish);
    connect(child, &QQuickItem::visibleChanged, this, &QQuickItem::polish);
}

void FlowLayout::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemChildAddedChange) {
        follow(value.item);
        polish();
    } else if (change == ItemChildRemovedChange) {
        value.item->disconnect(this);
        polish();
    }
    QQuickItem::itemChange(change, value);
}

void FlowLayout::geometryChange(const QRectF& to, const QRectF& from) {
    if (to.width() != from.width())
        polish();
    QQuickItem::geometryChange(to, from);
}

void FlowLayout::updatePolish() {
    std::vector<QQuickItem*> children;
    std::vector<QSizeF> sizes;
    const auto all = childItems();
    for (QQuickItem* child : all)
        if (isLaidOut(*child)) {
            children.push_back(child);
            sizes.push_back(child->size());
        }
    const Flow flow = flowLayout(sizes, width(), m_spacing, m_lineSpacing);
    for (std::size_t i = 0; i < children.size(); ++i) {
        QPointF place = flow.places[static_cast<qsizetype>(i)];
        if (m_isMirrored)
            place.setX(width() - place.x() - sizes[i].width());
        children[i]->setPosition(place);
    }
    setImplicitHeight(flow.height);
}

} // namespace TarnwickKit::views
