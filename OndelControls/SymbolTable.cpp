#include "OndelControls/SymbolTable.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>

namespace OndelControls {

namespace {

struct Entry {
    QStringView name;
    const char* file;
    double margin = 0; ///< of the file's grid of 16, left away on each side where a drawing is small in it
};

/// The names by which views and models ask for symbols, and the files under resources/symbols that draw them.
constexpr std::array entries{
    Entry{u"chart.bar.xaxis", "bar-chart-line"},
    Entry{u"checkmark", "check-lg"},
    Entry{u"checkmark.circle.fill", "check-circle-fill"},
    Entry{u"checkmark.seal.fill", "patch-check-fill"},
    Entry{u"checkmark.shield.fill", "shield-fill-check"},
    Entry{u"chevron.down", "chevron-down"},
    Entry{u"chevron.right", "chevron-right"},
    Entry{u"chevron.up", "chevron-up"},
    Entry{u"chevron.up.chevron.down", "chevron-expand"},
    Entry{u"circle", "circle"},
    Entry{u"ellipsis", "three-dots"},
    Entry{u"exclamationmark.octagon.fill", "exclamation-octagon-fill"},
    Entry{u"exclamationmark.triangle.fill", "exclamation-triangle-fill"},
    Entry{u"externaldrive", "usb-drive"},
    Entry{u"externaldrive.connected.to.line.below", "hdd-network"},
    Entry{u"folder", "folder"},
    Entry{u"gauge.with.dots.needle.bottom.50percent", "speedometer2"},
    Entry{u"heart.fill", "heart-fill"},
    Entry{u"info.circle", "info-circle"},
    Entry{u"internaldrive", "hdd"},
    Entry{u"ladybug", "bug"},
    Entry{u"pencil", "pencil"},
    Entry{u"play.fill", "play-fill", 3},
    Entry{u"sidebar.leading", "sidebar"},
    Entry{u"square.and.arrow.up", "box-arrow-up"},
    Entry{u"stop.fill", "stop-fill", 3},
    Entry{u"trash", "trash"},
    Entry{u"xmark", "x-lg"},
};

const Entry* find(QStringView name) {
    const auto entry = std::ranges::find(entries, name, &Entry::name);
    return entry == entries.end() ? nullptr : &*entry;
}

/// How much wider than drawn the strokes are, in units of the symbols' grid of 16.
double widening(int weight) { return weight <= QFont::Normal ? 0 : (weight - QFont::Normal) * 0.0025; }

QByteArray drawing(const char* file, int weight) {
    QFile svg(QStringLiteral(":/ondel/Symbols/%1.svg").arg(QLatin1String(file)));
    if (!svg.open(QIODevice::ReadOnly))
        return {};
    QByteArray content = svg.readAll();
    if (const double width = widening(weight); width > 0)
        content.replace("fill=\"currentColor\"",
                        "fill=\"#000\" stroke=\"#000\" stroke-linejoin=\"round\" stroke-width=\"" +
                            QByteArray::number(width) + '"');
    return content;
}

QImage render(const Entry& entry, int pixels, const QColor& color, int weight) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(drawing(entry.file, weight));
    renderer.setViewBox(
        QRectF(0, 0, 16, 16)
            .marginsRemoved(QMarginsF(entry.margin, entry.margin, entry.margin, entry.margin)));
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

bool isSymbol(QStringView name) { return find(name) != nullptr; }

int symbolBox(double fontSize) { return 2 * static_cast<int>(std::lround(0.6 * fontSize)); }

QImage symbolImage(const QString& name, int pixels, const QColor& color, int weight) {
    const Entry* entry = find(name);
    Q_ASSERT_X(entry, "symbolImage", qPrintable(name));
    if (!entry || pixels <= 0)
        return {};

    static QCache<QString, QImage> images(4 << 20); // bytes: some hundred symbols
    const QString key =
        QStringLiteral("%1 %2 %3 %4").arg(name).arg(pixels).arg(color.rgba(), 8, 16).arg(weight);
    if (const QImage* known = images.object(key))
        return *known;
    auto image = render(*entry, pixels, color, weight);
    images.insert(key, new QImage(image), image.sizeInBytes());
    return image;
}

} // namespace OndelControls
