#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>

namespace TarnwickKit::views {

/// The fonts, in sizes as drawn. Views use Typeface.qml, which applies the desktop's text scale.
///
/// Units: sizes are in logical pixels; Qt draws text in whole ones, so a half is rounded up. Weights are
/// those of QML's Font type.
class Typeface final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(DrawnTypeface)
    QML_SINGLETON

public:
    /// Space Grotesk: headings, titles, big numbers, the run button.
    Q_INVOKABLE static QFont display(double size, int weight = QFont::DemiBold);
    /// The same with digits of equal width, for figures that change or stand below each other.
    Q_INVOKABLE static QFont figures(double size, int weight = QFont::DemiBold);
    /// Figtree: labels, rows, descriptions.
    Q_INVOKABLE static QFont text(double size, int weight = QFont::Normal);
    /// IBM Plex Mono: numbers, units, time stamps, axis labels. `spacing` is added between letters.
    Q_INVOKABLE static QFont mono(double size, double spacing = 0);
};

} // namespace TarnwickKit::views
