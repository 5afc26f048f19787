#include "OndelAppSupport/AppIdentity.h"
#include "OndelControls/Card.h"
#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/sharing/CardView.h"
#include "TarnwickKit/views/sharing/PngEncoding.h"
#include "TarnwickKit/views/sharing/QRCode.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/sharing/SharedImage.h"
#include "TarnwickKit/views/sharing/ViewPicture.h"
#include "TarnwickKit/views/style/LegibleText.h"
#include "tests/TarnwickKit/model/ModelHarness.h"
#include "tests/TarnwickKit/views/Pictures.h"
#include "tests/TarnwickKit/views/Runs.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QProcess>
#include <QQuickItem>
#include <QStandardPaths>
#include <QUrl>

using namespace TarnwickKit::views;
using TarnwickKit::model::RunRecord;
using test::bareRun;
using test::fullRun;

namespace {

/// The text that a QR reader decodes from a picture.
QString scanned(const std::filesystem::path& picture) {
    QProcess reader;
    reader.start(QStringLiteral("zbarimg"),
                 {QStringLiteral("-q"), QStringLiteral("--raw"), QStringLiteral("-Sdisable"),
                  QStringLiteral("-Sqrcode.enable"), QString::fromStdString(picture.string())});
    reader.waitForFinished(-1);
    return QString::fromUtf8(reader.readAllStandardOutput()).trimmed();
}

bool hasReader() { return !QStandardPaths::findExecutable(QStringLiteral("zbarimg")).isEmpty(); }

QString link() { return QStringLiteral("https://") + productLink(); }

/// Checks what all cards have in common.
void expectCard(const ImageFile& file, const Palette& palette) {
    ASSERT_TRUE(file);
    const QImage card(QString::fromStdString(file->string()));
    ASSERT_EQ(card.width(), 1616);
    const int right = card.width() - 1;
    const int bottom = card.height() - 1;
    for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        EXPECT_EQ(card.pixelColor(corner).alpha(), 0);
        const QPoint inwards(corner.x() == 0 ? 1 : -1, corner.y() == 0 ? 1 : -1);
        EXPECT_EQ(card.pixelColor(corner + inwards * 50).alpha(), 0) << "the card's own corner is round";
        EXPECT_EQ(card.pixelColor(corner + inwards * 70).alpha(), 255);
    }
    EXPECT_EQ(card.pixelColor(70, 70), palette.panel);
    EXPECT_EQ(card.pixelColor(70, bottom - 70), palette.panel2);
    // The tile's padding, right of the code.
    EXPECT_EQ(card.pixelColor(right - 48 - 40 - 6, bottom - 48 - 32 - 56), QColor(Qt::white));
    if (hasReader()) {
        EXPECT_EQ(scanned(*file), link());
    }
}

QStringList cardTexts(const RunRecord& run) {
    const auto card = newCard(QStringLiteral("ReportCard"),
                              {{QStringLiteral("run"), QVariant::fromValue(run)},
                               {QStringLiteral("link"), QStringLiteral("example.org")}},
                              Palette::light());
    return test::texts(*card);
}

TEST(ReportImage, IsACardWithACodeThatCamerasRead) {
    RunRecord network = fullRun();
    network.fsType = QStringLiteral("SMBFS");
    RunRecord titled = fullRun();
    titled.customTitle = QString(60, u'W');
    for (const RunRecord& run : {fullRun(), bareRun(), network, titled})
        for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
            const ImageFile file = ReportImage::render(run, *palette);
            expectCard(file, *palette);
            ASSERT_TRUE(file);
            const QByteArray bytes = QByteArray::fromStdString(test::contentOf(*file));
            const auto later = ReportImage::renderLater(run, *palette).result();
            ASSERT_TRUE(later);
            EXPECT_EQ(later->path, *file) << "replaces the one before";
            EXPECT_EQ(QByteArray::fromStdString(test::contentOf(*file)), bytes)
                << "the same run gives the same bytes";
            EXPECT_EQ(later->bytes, bytes);
        }
    EXPECT_EQ(link(), OndelAppSupport::AppIdentity::tarnwick().website.toString());
}

TEST(ReportImage, HasATitleAndNoEmptyBand) {
    RunRecord run = bareRun();
    run.volumeName.clear();
    const ImageFile without = ReportImage::render(run, Palette::light());
    ASSERT_TRUE(without);
    EXPECT_EQ(without->filename(), "Ondel Tarnwick — Volume.png");
    EXPECT_TRUE(cardTexts(run).first() == "Volume") << cardTexts(run).join(u'\n').toStdString();
    EXPECT_EQ(ComparedRuns{{run}}.entries().at(0).value<ComparedRun>().legend, "Volume · May 1 · 12:34 PM");

    const int height = QImage(QString::fromStdString(without->string())).height();
    run.fsType = run.sizeLabel = QStringLiteral(" ");
    EXPECT_EQ(QImage(QString::fromStdString(ReportImage::render(run, Palette::light())->string())).height(),
              height);
    run.sizeLabel = QStringLiteral("1.0 GiB");
    EXPECT_GT(QImage(QString::fromStdString(ReportImage::render(run, Palette::light())->string())).height(),
              height + 2 * 26)
        << "the strip's padding at the images' scale";
}

TEST(LegibleText, DisturbsNothingBesideIt) {
    const std::pair<QString, QString> cases[] = {
        {QStringLiteral("a\n\u0007b\u2028c\u202Ed\u2066"), QStringLiteral("a b cd")},
        {QStringLiteral("🏳️‍🌈"), QStringLiteral("🏳‍🌈")},
        {QString(400, u'x'), QString(300, u'x')},
    };
    for (const auto& [from, to] : cases)
        EXPECT_EQ(legible(from), to);
    EXPECT_EQ(keptApart(QStringLiteral("SSD 990")), QStringLiteral("SSD 990"));
    EXPECT_EQ(keptApart(QStringLiteral("דיסק")), QStringLiteral("\u2068דיסק\u2069"));
}

TEST(ReportImage, FileNamesAreSafe) {
    const QString astronaut = QStringLiteral("🧑‍🚀"); // three code points, eleven bytes
    const std::pair<QString, std::string> cases[] = {
        {QStringLiteral("a/b//c"), "a-b--c.png"},
        {QStringLiteral("../x"), "-.-x.png"},
        {QStringLiteral("a\u0001\nb\u2028c\u0085\u202E\u2066") + QChar(0) + QChar(0xd), "a--b-c-----.png"},
        {QString(), "-.png"},
        {QString(300, u'x'), std::string(251, 'x') + ".png"},
        {QString(249, u'x') + QStringLiteral("é!"), std::string(249, 'x') + "é.png"},
        {QString(241, u'x') + astronaut, std::string(241, 'x') + ".png"},
        {QStringLiteral("e") + QString(300, QChar(0x301)), "-.png"}, // one character, too long by itself
    };
    for (const auto& [base, name] : cases)
        EXPECT_EQ(ReportImage::fileName(base), name);
}

TEST(ReportImage, AsksForNothingWhereThereIsNoPicture) {
    QQuickItem nothing;
    EXPECT_FALSE(ReportImage::png(nothing, QStringLiteral("empty")));
    nothing.setSize({40000, 40000}); // more than an image can be
    EXPECT_FALSE(ReportImage::png(nothing, QStringLiteral("huge")));
    const auto picture = ReportImage::render(bareRun(), Palette::light());
    ASSERT_TRUE(picture);
    std::filesystem::remove(*picture);
    std::filesystem::create_directories(*picture / "in the way");
    EXPECT_FALSE(ReportImage::render(bareRun(), Palette::light()));
    std::filesystem::remove_all(*picture);
}

TEST(PngEncoding, KeepsEveryPixel) {
    QImage gradient(37, 70, QImage::Format_ARGB32); // more lines than are converted at a time
    for (int y = 0; y < gradient.height(); ++y)
        for (int x = 0; x < gradient.width(); ++x)
            gradient.setPixel(x, y, qRgba(x * 6, y * 3, x ^ y, y < 9 ? 0 : 255 - x));
    for (const auto format :
         {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32})
        for (const QSize size : {QSize(1, 1), QSize(37, 32), QSize(3, 33), QSize(37, 70)}) {
            const QImage image = gradient.convertToFormat(format).copy(QRect(QPoint(), size));
            const QByteArray png = encodedPng(image);
            EXPECT_EQ(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGBA8888),
                      image.convertToFormat(QImage::Format_RGBA8888))
                << format << " " << size.width() << " by " << size.height();
        }
    EXPECT_TRUE(encodedPng(QImage()).isEmpty());
}

TEST(QRCode, IsSharpAndHoldsWhatItCan) {
    const auto code = QRCode::image(QStringLiteral("https://example.org/é"));
    ASSERT_TRUE(code);
    EXPECT_EQ(code->width(),
              (25 + 2 * QRCode::quietModules) * QRCode::pixelsPerModule); // 22 bytes: version 2
    EXPECT_TRUE(QRCode::image(QString(2331, u'x')));
    EXPECT_FALSE(QRCode::image(QString(2332, u'x')));
}

TEST(ReportCard, ShowsWhatTheRecordHas) {
    const struct {
        const char* what;
        void (*change)(RunRecord&);
        QString shown;  ///< "|" between; in this order, behind each other
        QString absent; ///< nowhere
    } cases[] = {
        {"everything", [](auto&) {},
         "Sequential Write|987|MB/s|peak 1,150 · min 700|Sequential Read|1,043|MB/s|peak 1,100 · min 900|"
         "Random 16 KiB read|12,345 IOPS|Random 16 KiB write|23,456 IOPS|File operations|1,999 /s",
         "--|Write |Read "},
        {"the strip", [](auto&) {},
         "File system |EXT4|Capacity |2.0 TiB|Free |1.0 TiB|Size |5.0 GiB|Read/Write |1 MiB|Random |16 KiB|"
         "Cache |Bypassed|Ondel Tarnwick|example.org",
         "?"},
        {"two blocks", [](auto& run) { run.readBlock = 4 << 20; }, "Write |1 MiB|Read |4 MiB", "Read/Write "},
        {"only a peak", [](auto& run) { run.writeMinBps = run.readPeakBps = run.readMinBps = std::nullopt; },
         "987|MB/s|Sequential Read|1,043|MB/s|Random 16 KiB read", "?"},
        {"no read", [](auto& run) { run.readBps = run.readPeakBps = run.readMinBps = std::nullopt; },
         "Sequential Read|--|MB/s|Random 16 KiB read", "Read |Read/Write "},
        {"no random",
         [](auto& run) {
             run.randomReadBps = run.randomWriteBps = run.randomReadIOPS = run.randomWriteIOPS = std::nullopt;
             run.randomBlock = std::nullopt;
         },
         "Random 4 KiB read|--|Random 4 KiB write|--", "Random "},
        {"cached", [](auto& run) { run.bypassCache = false; }, "Cache |Cached", "?"},
        {"nothing", [](auto& run) { run = bareRun(); },
         "Old|Internal|May 1, 2024 · 12:34 PM · 0s|Sequential Write|--|MB/s|Sequential Read|--|MB/s|"
         "Random 4 KiB read|--|Random 4 KiB write|--|File operations|--|Throughput over "
         "time|Write|Read|Ondel Tarnwick",
         "File system |Capacity |Free |Size |Random |Cache |Write |Read "},
        {"markup in a title", [](auto& run) { run.customTitle = "<b>x</b>"; }, "<b>x</b>|External · USB",
         "?"},
    };
    for (const auto& c : cases) {
        RunRecord run = fullRun();
        c.change(run);
        const QString all = cardTexts(run).join(u'\n') + u'\n';
        const QString shown = QString(c.shown).replace(u'|', u'\n');
        EXPECT_TRUE(all.contains(shown + u'\n')) << c.what << "\n" << all.toStdString();
        for (const QString& text : c.absent.split(u'|'))
            EXPECT_FALSE(all.contains(u'\n' + text + u'\n')) << c.what << ": " << text.toStdString();
    }
}

/// Eight runs with different titles and figures.
std::vector<RunRecord> eightRuns() {
    std::vector<RunRecord> runs(8, fullRun());
    for (std::size_t i = 0; i < runs.size(); ++i) {
        runs[i].customTitle = QStringLiteral("Disk %1").arg(i);
        runs[i].writeBps = 1e9 / static_cast<double>(i + 1);
        runs[i].readBps = i == 0 ? 1e12 : 1e3; // a bar of a thousandth of a pixel, drawn as a stub
        runs[i].randomReadIOPS = i == 3 ? std::optional(5.0) : std::nullopt;
        runs[i].randomWriteIOPS = 0;
        runs[i].fileOpsPerSec = std::nullopt;
    }
    return runs;
}

TEST(ComparisonImage, IsACardWithACodeThatCamerasRead) {
    for (const Palette* palette : {&Palette::light(), &Palette::dark()}) {
        const ImageFile file = ComparisonImage::render(eightRuns(), *palette);
        expectCard(file, *palette);
        ASSERT_TRUE(file);
        EXPECT_EQ(file->filename(), "Ondel Tarnwick — Comparison.png");
        EXPECT_EQ(ComparisonImage::renderLater({fullRun(), bareRun()}, *palette).result()->path, *file);
    }
}

TEST(ComparisonChart, HasBarsInTheColorsOfTheRuns) {
    const auto card = newCard(QStringLiteral("ComparisonCard"),
                              {{QStringLiteral("runs"), QVariant::fromValue(ComparedRuns{eightRuns()})},
                               {QStringLiteral("link"), QString()}},
                              Palette::dark());
    QString all = test::texts(*card).join(u'\n');
    EXPECT_TRUE(all.contains(
        QStringLiteral("Random read\nIOPS\n--\n--\n--\n5\n--\n--\n--\n--\nRandom write\nIOPS\n0\n0")));
    EXPECT_TRUE(all.contains(QStringLiteral("8 benchmarks compared")));
    EXPECT_FALSE(all.contains(QStringLiteral("File ops")));

    std::vector<std::pair<double, QColor>> bars; // of a height no other card has, one in each track
    for (const QQuickItem* item : test::itemsOf(*card))
        if (const auto* track = qobject_cast<const OndelControls::Card*>(item);
            track && track->height() == 15 && track->color() == Palette::dark().track) {
            ASSERT_EQ(track->width(), 460);
            const auto* bar = qobject_cast<OndelControls::Card*>(track->childItems().at(0));
            bars.emplace_back(bar->width(), bar->color());
        }
    ASSERT_EQ(bars.size(), 4U * 8U);
    const QList<QColor>& series = Palette::dark().series;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const std::size_t run = i % 8;
        const double widths[] = {460.0 / static_cast<double>(run + 1), run == 0 ? 460.0 : 3.0,
                                 run == 3 ? 460.0 : 0.0, 0};
        EXPECT_DOUBLE_EQ(bars[i].first, widths[i / 8]) << i;
        EXPECT_EQ(bars[i].second, series.at(static_cast<qsizetype>(run) % series.size()));
    }
}

QByteArray copied() { return QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("image/png")); }

TEST(SharedImage, HandsOnTheImageThatWasMade) {
    SharedImage image;
    int made = 0;
    int told = 0;
    QObject::connect(&image, &SharedImage::ready, &image, [&made] { ++made; });
    QObject::connect(&image, &SharedImage::told, &image, [&told] { ++told; });

    const auto run = fullRun();
    image.makeReport(run, &Palette::light());
    image.makeComparison({{run, run}}, &Palette::light()); // ignored, since an image is being made
    TarnwickKit::model::turnUntil([&] { return made > 0; });
    image.copy();
    EXPECT_EQ(told, 1); // what it says depends on the platform: without a display nobody owns a clipboard
    const QImage report = QImage::fromData(copied(), "PNG");
    EXPECT_EQ(report.width(), 1616);
    EXPECT_EQ(report.pixelColor(70, 70), Palette::light().panel);

    image.makeComparison({{run, run}}, &Palette::dark());
    TarnwickKit::model::turnUntil([&] { return made > 1; });
    // Another image of the same name does not change what is shared.
    ASSERT_TRUE(ComparisonImage::render({run}, Palette::light()));
    image.copy();
    EXPECT_EQ(QImage::fromData(copied(), "PNG").pixelColor(70, 70), Palette::dark().panel);
    EXPECT_EQ(made, 2);
}

} // namespace
