#pragma once

#include "OndelDesktop/ColorScheme.h"
#include "TarnwickKit/views/style/Palette.h"

#include <QObject>
#include <QQmlEngine>

namespace TarnwickKit::views {

/// Whether the desktop is dark or light, with changes: the portal's setting, else the lightness of the
/// platform's palette.
class Appearance final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    /// The palette for it.
    Q_PROPERTY(TarnwickKit::views::Palette* palette READ palette NOTIFY darkChanged)
    Q_PROPERTY(TarnwickKit::views::Palette* lightPalette READ lightPalette CONSTANT)
    Q_PROPERTY(TarnwickKit::views::Palette* darkPalette READ darkPalette CONSTANT)

public:
    explicit Appearance(QObject* parent = nullptr);

    bool isDark() const { return m_dark; }
    Q_SIGNAL void darkChanged();

    Palette* palette() const { return m_dark ? darkPalette() : lightPalette(); }
    static Palette* lightPalette() { return const_cast<Palette*>(&Palette::light()); }
    static Palette* darkPalette() { return const_cast<Palette*>(&Palette::dark()); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void decide();

    OndelDesktop::ColorScheme m_scheme = OndelDesktop::ColorScheme::NoPreference;
    bool m_dark = false;
    OndelDesktop::ColorSchemeWatch m_watch;
};

} // namespace TarnwickKit::views
