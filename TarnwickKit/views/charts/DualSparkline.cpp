#include "TarnwickKit/views/charts/DualSparkline.h"

#include "TarnwickKit/views/charts/CurvePoints.h"
#include "TarnwickKit/views/charts/SparklinePicture.h"

namespace TarnwickKit::views {

void DualSparkline::setRun(const model::RunRecord& run) {
    if (take(m_run, run))
        Q_EMIT runChanged();
}

/// The key is not made before the engine has put its data onto the new item, or both would be lost.
void DualSparkline::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemSceneChange && value.window && !m_key) {
        m_key = PaletteKey::of(this);
        connect(m_key, &PaletteKey::paletteChanged, this, &DualSparkline::redraw);
    }
    ImageItem::itemChange(change, value);
}

OndelControls::ImageItem::Picture DualSparkline::paint(double scale) {
    if (m_run.readSamples.size() < 2 && m_run.writeSamples.size() < 2)
        return {};
    QImage image = sparklineCanvas(size(), scale);
    paintSparkline(image, pointsOf(m_run.readSamples), m_key->palette().teal, size(), scale);
    paintSparkline(image, pointsOf(m_run.writeSamples), m_key->palette().coral, size(), scale);
    return {image, {-sparklineMargin, -sparklineMargin}};
}

} // namespace TarnwickKit::views
