#include "TarnwickKit/views/style/PaletteKey.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace TarnwickKit::views {

namespace {

PaletteKey* keyOf(QObject* owner) {
    return owner ? qobject_cast<PaletteKey*>(qmlAttachedPropertiesObject<PaletteKey>(owner, false)) : nullptr;
}

/// A popup is a child of the window's overlay, not of the item that it belongs to.
QQuickItem* popupParent(const QQuickItem* item) {
    QObject* owner = item->parent();
    if (!owner || owner->isWindowType() || qobject_cast<QQuickItem*>(owner))
        return nullptr;
    return owner->property("parent").value<QQuickItem*>();
}

QObject* above(QObject* owner) {
    if (const auto* item = qobject_cast<QQuickItem*>(owner)) {
        if (QQuickItem* opener = popupParent(item))
            return opener;
        if (item->parentItem())
            return item->parentItem();
        return item->window();
    }
    if (auto* opener = owner->property("parent").value<QQuickItem*>())
        return opener;
    return owner->parent();
}

} // namespace

PaletteKey* PaletteKey::qmlAttachedProperties(QObject* owner) { return new PaletteKey(owner); }

PaletteKey::PaletteKey(QObject* owner)
    : QObject(owner) {
    inherit();
}

PaletteKey* PaletteKey::of(QObject* view) {
    return qobject_cast<PaletteKey*>(qmlAttachedPropertiesObject<PaletteKey>(view, true));
}

void PaletteKey::install(QObject* view, const Palette& palette) { of(view)->setPalette(palette); }

void PaletteKey::setPalettePointer(Palette* palette) {
    if (palette)
        setPalette(*palette);
}

void PaletteKey::setPalette(const Palette& palette) {
    const bool isFirst = !m_installed;
    m_installed = true;
    for (const auto& connection : m_wayUp)
        disconnect(connection);
    m_wayUp.clear();
    use(palette);

    // Descendants may have inherited from further up until now.
    if (!isFirst)
        return;
    if (auto* item = qobject_cast<QQuickItem*>(parent()))
        tellBeneath(item);
    else if (auto* window = qobject_cast<QQuickWindow*>(parent()))
        tellBeneath(window->contentItem());
}

void PaletteKey::tellBeneath(QQuickItem* item) {
    const auto tell = [](QObject* child) {
        PaletteKey* key = keyOf(child);
        if (key)
            key->inherit();
        return key != nullptr;
    };
    const auto items = item->childItems();
    for (QQuickItem* child : items)
        if (!tell(child))
            tellBeneath(child);
    const auto& others = item->children(); // objects that are no items, such as a chart's series
    for (QObject* child : others)
        if (!qobject_cast<QQuickItem*>(child))
            tell(child);
}

/// Takes the palette of the nearest key above. A window has hundreds of keys, so each has few connections: to
/// that key, to its own view's parent changes, and to those of a tree that is not in a window yet.
void PaletteKey::inherit() {
    if (m_installed)
        return;
    for (const auto& connection : m_wayUp)
        disconnect(connection);
    m_wayUp.clear();

    QObject* top = parent();
    const PaletteKey* key = nullptr;
    for (QObject* view = above(top); view && !key; view = above(view)) {
        top = view;
        key = keyOf(view);
    }
    const auto followMoves = [this](QObject* view) {
        if (auto* item = qobject_cast<QQuickItem*>(view))
            m_wayUp.push_back(connect(item, &QQuickItem::parentChanged, this, &PaletteKey::inherit));
    };
    followMoves(parent());
    if (key)
        m_wayUp.push_back(connect(key, &PaletteKey::paletteChanged, this, &PaletteKey::inherit));
    else if (top != parent())
        followMoves(top);
    use(key ? key->palette() : Palette::light());
}

void PaletteKey::use(const Palette& palette) {
    if (m_palette == &palette)
        return;
    m_palette = &palette;
    Q_EMIT paletteChanged();
}

} // namespace TarnwickKit::views
