#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/charts/ChartSeries.h"

#include <QObject>
#include <QQmlEngine>

namespace TarnwickKit::views {

/// A saved run as a value that QML hands on as it is.
struct RunRecordType {
    Q_GADGET
    QML_FOREIGN(TarnwickKit::model::RunRecord)
    QML_VALUE_TYPE(runRecord)
};

/// One of the two curves of a saved run.
class RunSeries : public TarnwickKit::views::ChartSeries {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(TarnwickKit::model::RunRecord run READ run WRITE setRun NOTIFY runChanged)
    Q_PROPERTY(Curve curve READ curve WRITE setCurve NOTIFY curveChanged)

public:
    enum Curve { Write, Read };
    Q_ENUM(Curve)

    using ChartSeries::ChartSeries;

    const model::RunRecord& run() const { return m_run; }
    void setRun(const model::RunRecord& run);
    Q_SIGNAL void runChanged();
    Curve curve() const { return m_curve; }
    void setCurve(Curve curve);
    Q_SIGNAL void curveChanged();

private:
    void takePoints();

    model::RunRecord m_run;
    Curve m_curve = Write;
};

} // namespace TarnwickKit::views
