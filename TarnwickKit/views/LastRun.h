#pragma once

#include "TarnwickKit/model/AnalyzerModel.h"
#include "TarnwickKit/views/RunFigures.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace TarnwickKit::views {

/// What the model's last finished run brought, for views to bind to.
class LastRun : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY changed REQUIRED)
    Q_PROPERTY(TarnwickKit::views::RunFigures figures READ figures NOTIFY changed)
public:
    using QObject::QObject;

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    /// Without a run: no figures.
    RunFigures figures() const;
    Q_SIGNAL void changed();

private:
    model::AnalyzerModel* m_analyzer = nullptr;
};

} // namespace TarnwickKit::views
