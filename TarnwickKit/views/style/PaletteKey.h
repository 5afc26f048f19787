#pragma once

#include "TarnwickKit/views/style/Palette.h"

#include <QObject>
#include <QQmlEngine>

#include <vector>

class QQuickItem;

namespace TarnwickKit::views {

/// The key under which the current Palette travels from a view to all views in it: `PaletteKey.palette`.
///
/// A view that sets it installs that palette for itself and everything beneath; a view that only reads it
/// gets the palette of the nearest view above that has one, light if there is none. Popups take that of the
/// item they belong to. A key follows when its own view moves; a view on the way up that has no key must not
/// move from one palette to another.
class PaletteKey final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("PaletteKey is only available as an attached property")
    QML_ATTACHED(TarnwickKit::views::PaletteKey) // unqualified, the linter would not find it

    Q_PROPERTY(TarnwickKit::views::Palette* palette READ palettePointer WRITE setPalettePointer NOTIFY
                   paletteChanged)

public:
    static PaletteKey* qmlAttachedProperties(QObject* owner);

    /// The key of a view, made at the first call, which must not come from the view's constructor.
    static PaletteKey* of(QObject* view);

    /// Installs `palette` for `view` and what lies beneath it.
    static void install(QObject* view, const Palette& palette);

    const Palette& palette() const { return *m_palette; }
    void setPalette(const Palette& palette);
    Q_SIGNAL void paletteChanged();

private:
    explicit PaletteKey(QObject* owner);

    // The declarative engine knows no pointers to constants; a Palette has nothing that could be written.
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
