#pragma once

#include "OndelDesktop/DesktopAppearance.h"
#include "TarnwickKit/views/style/Palette.h"

#include <QObject>
#include <QQmlEngine>
#include <QSettings>

#include <optional>

namespace TarnwickKit::views {

/// What the screen's resolution for texts makes of them.
struct ScreenScale {
    bool hasTextScale = false; ///< the resolution contains the desktop's text scale, as on X11
    double applied = 1;        ///< by which the toolkit enlarges everything, texts included
    double left = 1;           ///< what it leaves to do for texts
};

/// How much larger than drawn texts are, on a desktop that wants `wanted`.
double textScaleOn(const ScreenScale& screen, std::optional<double> wanted);

/// How the desktop wants the window to look, with changes: the portal's settings, else the lightness of the
/// platform's palette. Until the portal answers it is what it was when a window was last open, so that a
/// window on a dark desktop is dark from its first frame.
class Appearance final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(bool contrast READ hasContrast NOTIFY changed)
    /// Nothing moves by itself.
    Q_PROPERTY(bool still READ isStill NOTIFY changed)
    /// How much larger than drawn texts are.
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(TarnwickKit::views::Palette* palette READ palette NOTIFY changed)
    /// Those of the current contrast.
    Q_PROPERTY(TarnwickKit::views::Palette* lightPalette READ lightPalette NOTIFY changed)
    Q_PROPERTY(TarnwickKit::views::Palette* darkPalette READ darkPalette NOTIFY changed)

public:
    explicit Appearance(QObject* parent = nullptr);

    bool isDark() const { return m_dark; }
    bool hasContrast() const { return m_desktop.wantsHighContrast; }
    bool isStill() const { return m_desktop.wantsNoMotion; }
    double textScale() const { return textScaleOn(screenScale(), m_desktop.textScale); }
    Q_SIGNAL void changed();

    Palette* palette() const { return m_dark ? darkPalette() : lightPalette(); }
    Palette* lightPalette() const { return paletteOf(false, hasContrast()); }
    Palette* darkPalette() const { return paletteOf(true, hasContrast()); }
    Q_INVOKABLE static TarnwickKit::views::Palette* paletteOf(bool dark, bool contrast) {
        // QML has no pointers to const objects. A Palette has no writable property.
        return const_cast<Palette*>(contrast ? (dark ? &Palette::contrastDark() : &Palette::contrastLight())
                                             : (dark ? &Palette::dark() : &Palette::light()));
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static ScreenScale screenScale();
    void remember();
    void decide();

    QSettings m_settings;
    OndelDesktop::DesktopAppearance m_desktop;
    bool m_dark = false;
    OndelDesktop::AppearanceWatch m_watch;
};

} // namespace TarnwickKit::views
