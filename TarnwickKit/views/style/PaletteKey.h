#pragma once

#include "TarnwickKit/views/style/Palette.h"

#include <QObject>
#include <QQmlEngine>

#include <vector>

class QQuickItem;

namespace TarnwickKit::views {

/// Passes the current Palette from a view to all views in it: `PaletteKey.palette`.
///
/// Setting it installs the palette for the view and its descendants. Reading it gives the palette of the
/// nearest ancestor with a key, light without one. A popup inherits from the item it belongs to. A key is
/// updated when its own view gets another parent, but not when an ancestor without a key does.
class PaletteKey final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PaletteKey is only available as an attached property")
    QML_ATTACHED(TarnwickKit::views::PaletteKey) // unqualified, the linter would not find it

    Q_PROPERTY(TarnwickKit::views::Palette* palette READ palettePointer WRITE setPalettePointer NOTIFY
                   paletteChanged)

public:
    static PaletteKey* qmlAttachedProperties(QObject* owner);

    /// The key of a view, created by the first call. Must not be called from the view's constructor.
    static PaletteKey* of(QObject* view);

    /// Installs `palette` for `view` and its descendants.
    static void install(QObject* view, const Palette& palette);

    const Palette& palette() const { return *m_palette; }
    void setPalette(const Palette& palette);
    Q_SIGNAL void paletteChanged();

private:
    explicit PaletteKey(QObject* owner);

    // QML has no pointers to const objects. A Palette has no writable property.
    Palette* palettePointer() const { return const_cast<Palette*>(m_palette); }
    void setPalettePointer(Palette* palette);

    void inherit();
    void use(const Palette& palette);
    static void tellBeneath(QQuickItem* item);

    const Palette* m_palette = &Palette::light();
    bool m_installed = false;
    std::vector<QMetaObject::Connection> m_wayUp;
};

} // namespace TarnwickKit::views
