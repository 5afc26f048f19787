#include "TarnwickKit/views/TarnwickViews.h"

#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/style/Palette.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QQmlEngine>

namespace TarnwickKit::views {

void addTo(QQmlEngine& engine) {
    TarnwickFonts::registerFrom();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

ImageFile reportImage(const model::TarnwickReport& report, bool dark) {
    TarnwickFonts::registerFrom();
    return ReportImage::render(report.run, dark ? Palette::dark() : Palette::light());
}

} // namespace TarnwickKit::views
