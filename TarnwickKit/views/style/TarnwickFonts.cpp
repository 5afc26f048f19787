#include "TarnwickKit/views/style/TarnwickFonts.h"

#include "TarnwickKit/views/style/Typeface.h"

#include <QDir>
#include <QFontDatabase>

namespace TarnwickKit::views::TarnwickFonts {

namespace {

void registerFolder(const QDir& folder) {
    const auto files = folder.entryInfoList({QStringLiteral("*.ttf")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        QFontDatabase::addApplicationFont(file.filePath());
}

} // namespace

void registerFrom(const QString& bundle) {
    static bool isRegistered = false;
    if (isRegistered)
        return;
    isRegistered = true;
    registerFolder(QDir(bundle));
    registerFolder(QDir(bundle + QStringLiteral("/Fonts")));
}

QFont applicationFont() { return Typeface::text(13); }

} // namespace TarnwickKit::views::TarnwickFonts
