#include "OndelControls/Symbol.h"

#include "OndelControls/SymbolTable.h"

#include <cmath>

namespace OndelControls {

namespace {

double toPixelGrid(double value, double scale) { return std::round(value * scale) / scale; }

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : ImageItem(parent) {
    setImplicitSize(symbolBox(m_size), symbolBox(m_size));
}

void Symbol::setName(const QString& name) {
    Q_ASSERT_X(name.isEmpty() || isSymbol(name), "Symbol", qPrintable(name));
    if (take(m_name, name))
        Q_EMIT changed();
}

void Symbol::setSize(double size) {
    if (!take(m_size, size))
        return;
    setImplicitSize(symbolBox(size), symbolBox(size));
    Q_EMIT changed();
}

void Symbol::setColor(const QColor& color) {
    if (take(m_color, color))
        Q_EMIT changed();
}

void Symbol::setWeight(int weight) {
    if (take(m_weight, weight))
        Q_EMIT changed();
}

ImageItem::Picture Symbol::paint(double scale) {
    if (!isSymbol(m_name))
        return {};
    const int pixels = static_cast<int>(std::lround(symbolBox(m_size) * scale));
    const double side = pixels / scale;
    return {symbolImage(m_name, pixels, m_color, m_weight),
            {toPixelGrid((width() - side) / 2, scale), toPixelGrid((height() - side) / 2, scale)}};
}

} // namespace OndelControls
