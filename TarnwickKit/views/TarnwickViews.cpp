#include "TarnwickKit/views/TarnwickViews.h"

#include "OndelControls/ViewEngine.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/style/Palette.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

namespace TarnwickKit::views {

void addTo(QQmlEngine& engine) {
    TarnwickFonts::registerFrom();
    OndelControls::addModules(engine);
}

ImageFile reportImage(const model::TarnwickReport& report, bool dark) {
    TarnwickFonts::registerFrom();
    return ReportImage::render(report.run, dark ? Palette::dark() : Palette::light());
}

} // namespace TarnwickKit::views
