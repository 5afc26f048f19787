#pragma once

#include "OndelControls/ImageItem.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/style/PaletteKey.h"

#include <QList>
#include <QPointF>

namespace TarnwickKit::views {

/// The two curves of a saved run, write above read, each scaled by its own peak. It is one item and not two,
/// since a history shows fifty of them.
class DualSparkline : public OndelControls::ImageItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::model::RunRecord run READ run WRITE setRun NOTIFY runChanged)

public:
    using ImageItem::ImageItem;

    const model::RunRecord& run() const { return m_run; }
    void setRun(const model::RunRecord& run);
    Q_SIGNAL void runChanged();

protected:
    Picture paint(double scale) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    model::RunRecord m_run;
    PaletteKey* m_key = nullptr;
};

} // namespace TarnwickKit::views
