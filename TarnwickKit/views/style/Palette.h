#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QStringView>

#include <utility>

namespace TarnwickKit::views {

/// An opaque sRGB colour from hexadecimal digits, the last six of them as red, green and blue.
///
/// Fails: never; digits that are not a number give black.
QColor hex(QStringView digits);

/// All colours of the program. There are four constant instances; a view gets its own through PaletteKey.
///
/// Threads: any. The instances are created at first use and are read-only.
class Palette final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ColorPalette) // QtQuick has a Palette of its own
    QML_UNCREATABLE("A view reads the current one from PaletteKey.palette")

    Q_PROPERTY(QColor bg MEMBER bg CONSTANT)
    Q_PROPERTY(QColor body MEMBER body CONSTANT)
    Q_PROPERTY(QColor sidebar MEMBER sidebar CONSTANT)
    Q_PROPERTY(QColor panel MEMBER panel CONSTANT)
    Q_PROPERTY(QColor panel2 MEMBER panel2 CONSTANT)
    Q_PROPERTY(QColor tbTop MEMBER tbTop CONSTANT)
    Q_PROPERTY(QColor tbBot MEMBER tbBot CONSTANT)
    Q_PROPERTY(QColor border MEMBER border CONSTANT)
    Q_PROPERTY(QColor borderSoft MEMBER borderSoft CONSTANT)
    Q_PROPERTY(QColor text MEMBER text CONSTANT)
    Q_PROPERTY(QColor text2 MEMBER text2 CONSTANT)
    Q_PROPERTY(QColor text3 MEMBER text3 CONSTANT)
    Q_PROPERTY(QColor heading MEMBER heading CONSTANT)
    Q_PROPERTY(QColor coral MEMBER coral CONSTANT)
    Q_PROPERTY(QColor coral2 MEMBER coral2 CONSTANT)
    Q_PROPERTY(QColor coralink MEMBER coralink CONSTANT)
    Q_PROPERTY(QColor coralSoft MEMBER coralSoft CONSTANT)
    Q_PROPERTY(QColor teal MEMBER teal CONSTANT)
    Q_PROPERTY(QColor teal2 MEMBER teal2 CONSTANT)
    Q_PROPERTY(QColor tealSoft MEMBER tealSoft CONSTANT)
    Q_PROPERTY(QColor amber MEMBER amber CONSTANT)
    Q_PROPERTY(QColor good MEMBER good CONSTANT)
    Q_PROPERTY(QColor goodDot MEMBER goodDot CONSTANT)
    Q_PROPERTY(QColor chip MEMBER chip CONSTANT)
    Q_PROPERTY(QColor sel MEMBER sel CONSTANT)
    Q_PROPERTY(QColor grid MEMBER grid CONSTANT)
    Q_PROPERTY(QColor track MEMBER track CONSTANT)
    Q_PROPERTY(QColor writeFill MEMBER writeFill CONSTANT)
    Q_PROPERTY(QColor readFill MEMBER readFill CONSTANT)
    Q_PROPERTY(QColor shadow MEMBER shadow CONSTANT)
    Q_PROPERTY(QColor blue MEMBER blue CONSTANT)
    Q_PROPERTY(QColor accent MEMBER accent CONSTANT)
    Q_PROPERTY(QColor onAccent MEMBER onAccent CONSTANT)
    Q_PROPERTY(QList<QColor> series MEMBER series CONSTANT)
    Q_PROPERTY(QColor onStop READ onStop CONSTANT)
    Q_PROPERTY(QColor warning READ warning CONSTANT)
    Q_PROPERTY(QColor link READ link CONSTANT)
    Q_PROPERTY(QColor danger READ danger CONSTANT)

public:
    static const Palette& light();
    static const Palette& dark();
    /// The same for desktops that ask for high contrast: text of at least 7:1 on its ground, lines and marks
    /// of at least 4.5:1 (WCAG 2.2, 1.4.6 and 1.4.11).
    static const Palette& contrastLight();
    static const Palette& contrastDark();
    bool hasContrast() const { return this == &contrastLight() || this == &contrastDark(); }

    /// Text and symbols of the button that stops a run, on `text2`.
    QColor onStop() const { return hasContrast() ? bg : QColor(Qt::white); }

    /// Symbols that tell a warning besides the colour of its text. `amber` is too pale for them on light
    /// grounds.
    QColor warning() const { return this == &light() ? QColor::fromRgb(0x9a5f12) : amber; }

    /// Text that can be pressed, and what deletes, where `teal` and `coralink` are too pale for text.
    QColor link() const { return this == &light() ? QColor::fromRgb(0x0d6c7e) : teal; }
    QColor danger() const { return this == &light() ? QColor::fromRgb(0xb84520) : coralink; }

    /// The two stops of the gradient behind a volume's symbol.
    std::pair<QColor, QColor> badgeColors(model::RunRecord::Kind kind) const;
    /// The same, one stop at a time, for QML.
    Q_INVOKABLE QColor badgeStart(int kind) const { return badgeColors(kindOf(kind)).first; }
    Q_INVOKABLE QColor badgeEnd(int kind) const { return badgeColors(kindOf(kind)).second; }

    QColor bg;   ///< the whole window
    QColor body; ///< main pane
    QColor sidebar;
    QColor panel;      ///< cards and rows
    QColor panel2;     ///< toolbar, inner strips, icon buttons
    QColor tbTop;      ///< toolbar tone, top
    QColor tbBot;      ///< toolbar tone, bottom
    QColor border;     ///< strong hairlines, outlines of cards
    QColor borderSoft; ///< hairlines inside cards
    QColor text;
    QColor text2;
    QColor text3; ///< axis labels, captions
    QColor heading;
    QColor coral; ///< the write series
    QColor coral2;
    QColor coralink;
    QColor coralSoft;
    QColor teal; ///< the read series, links, what is active
    QColor teal2;
    QColor tealSoft;
    QColor amber;   ///< warnings
    QColor good;    ///< positive text
    QColor goodDot; ///< positive dots
    QColor chip;
    QColor sel;       ///< a selected row
    QColor grid;      ///< chart grid
    QColor track;     ///< the background of bars
    QColor writeFill; ///< area under the write series
    QColor readFill;  ///< area under the read series
    QColor shadow;
    QColor blue;
    QColor accent;        ///< filled controls, check marks
    QColor onAccent;      ///< text and symbols on `accent`
    QList<QColor> series; ///< one colour per compared run

private:
    enum class Tone { Light, Dark, ContrastLight, ContrastDark };
    explicit Palette(Tone tone);

    static model::RunRecord::Kind kindOf(int kind) { return static_cast<model::RunRecord::Kind>(kind); }
};

} // namespace TarnwickKit::views
