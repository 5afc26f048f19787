#pragma once

#include "TarnwickKit/views/ChartSeries.h"
#include "TarnwickKit/views/FollowedModel.h"

namespace TarnwickKit::views {

/// The curve of the test that runs, as the model's samples come in.
class LiveSeries : public TarnwickKit::views::ChartSeries {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)

public:
    explicit LiveSeries(QObject* parent = nullptr);
    ~LiveSeries() override;

    model::AnalyzerModel* analyzer() const;
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

private:
    FollowedModel m_analyzer;
};

} // namespace TarnwickKit::views
