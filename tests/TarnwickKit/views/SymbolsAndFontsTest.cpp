#include "OndelControls/SymbolTable.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

#include <set>

using namespace OndelControls;
using namespace TarnwickKit::views;

namespace {

int ink(const QImage& image) {
    int sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    return sum;
}

TEST(Symbols, EachHasADrawing) {
    const QStringList names =
        QStringLiteral(
            "chart.bar.xaxis checkmark checkmark.circle.fill checkmark.seal.fill "
            "checkmark.shield.fill chevron.down chevron.right chevron.up chevron.up.chevron.down "
            "circle ellipsis exclamationmark.octagon.fill exclamationmark.triangle.fill externaldrive "
            "externaldrive.connected.to.line.below folder "
            "gauge.with.dots.needle.bottom.50percent heart.fill info.circle internaldrive "
            "ladybug pencil play.fill square.and.arrow.up stop.fill trash xmark")
            .split(u' ');
    std::set<QByteArray> drawings;
    for (const QString& symbol : names) {
        ASSERT_TRUE(isSymbol(symbol)) << symbol.toStdString();
        const QImage image = symbolImage(symbol, 32, Qt::red);
        EXPECT_GT(ink(image), 32 * 255) << symbol.toStdString();
        drawings.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(drawings.size(), static_cast<std::size_t>(names.size())); // no two alike
    EXPECT_FALSE(isSymbol(u"checkmark.circle"));
    EXPECT_FALSE(isSymbol(u""));
}

TEST(Symbols, TakeColorOpacityAndWeight) {
    const auto symbol = QStringLiteral("stop.fill");
    EXPECT_EQ(symbolImage(symbol, 20, QColor(1, 2, 3)).pixelColor(10, 10), QColor(1, 2, 3));
    EXPECT_EQ(symbolImage(symbol, 20, QColor(255, 0, 0, 128)).pixelColor(10, 10).alpha(), 128);
    const auto check = QStringLiteral("checkmark");
    EXPECT_GT(ink(symbolImage(check, 40, Qt::black, QFont::Bold)),
              ink(symbolImage(check, 40, Qt::black)) * 5 / 4);
}

TEST(Symbols, StandInEvenSquares) {
    for (const double size : {8.0, 9.0, 10.0, 11.0, 12.0, 13.0, 14.0, 15.0, 18.0, 30.0})
        EXPECT_EQ(symbolBox(size) % 2, 0) << size;
    EXPECT_EQ(symbolBox(30), 36);
}

TEST(Fonts, AreTheFamiliesAndWeightsThatTheyAreNamedBy) {
    EXPECT_EQ(QFontInfo(Typeface::display(16)).family(), QLatin1String("Space Grotesk"));
    EXPECT_EQ(QFontInfo(Typeface::mono(10.5)).family(), QLatin1String("IBM Plex Mono"));
    const QString text = QStringLiteral("Sequential Write");
    double width = 0;
    for (const int weight : {QFont::Normal, QFont::Medium, QFont::DemiBold}) {
        const QFont font = Typeface::text(12, weight);
        EXPECT_EQ(QFontInfo(font).family(), QLatin1String("Figtree"));
        EXPECT_GT(QFontMetricsF(font).horizontalAdvance(text), width) << weight;
        width = QFontMetricsF(font).horizontalAdvance(text);
    }
}

TEST(Fonts, FiguresHaveOneWidth) {
    const QFontMetricsF metrics(Typeface::figures(18));
    for (const QChar digit : QStringLiteral("123456789"))
        EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'))
            << digit.toLatin1();
    EXPECT_EQ(metrics.height(), QFontMetricsF(Typeface::display(18)).height());
    EXPECT_EQ(metrics.horizontalAdvance(u','), QFontMetricsF(Typeface::display(18)).horizontalAdvance(u','));
}

TEST(Fonts, ASecondRegistrationDoesNothing) {
    const auto before = QFontDatabase::families();
    TarnwickFonts::registerFrom(QStringLiteral("/usr/share/fonts/truetype/dejavu"));
    EXPECT_EQ(QFontDatabase::families(), before);
}

} // namespace
