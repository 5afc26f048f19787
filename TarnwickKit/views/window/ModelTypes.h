#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QAbstractListModel>
#include <QObject>
#include <QQmlEngine>

/// The model's types under their QML names. The model itself does not depend on QML.
namespace TarnwickKit::views {

struct AnalyzerModelType {
    Q_GADGET
    QML_FOREIGN(TarnwickKit::model::AnalyzerModel)
    QML_NAMED_ELEMENT(AnalyzerModel)
    QML_UNCREATABLE("The application owns the one model and hands it to its views.")
};

struct AnalyzerSettingsType {
    Q_GADGET
    QML_FOREIGN(TarnwickKit::model::AnalyzerSettings)
    QML_ANONYMOUS
};

struct RunRecordType {
    Q_GADGET
    QML_FOREIGN(TarnwickKit::model::RunRecord)
    QML_VALUE_TYPE(runRecord)
};

// The base classes of list models, which no imported module declares.
struct AbstractItemModelType {
    Q_GADGET
    QML_FOREIGN(QAbstractItemModel)
    QML_ANONYMOUS
};
struct AbstractListModelType {
    Q_GADGET
    QML_FOREIGN(QAbstractListModel)
    QML_ANONYMOUS
};

/// Format, for QML. Units: bytes and bytes per second, exact to 2^53.
class FormatType : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Format)
    QML_SINGLETON
    Q_PROPERTY(double defaultLeaveFree READ defaultLeaveFree CONSTANT)
public:
    static double defaultLeaveFree() {
        return static_cast<double>(OndelCore::benchmark::BenchmarkSize::defaultLeaveFree);
    }
    Q_INVOKABLE static QString block(double size) { return model::Format::block(whole(size)); }
    Q_INVOKABLE static QString bytes(double size) { return model::Format::bytes(whole(size)); }
    Q_INVOKABLE static QString mbValue(double rate) { return model::Format::mbValue(rate); }

private:
    static std::int64_t whole(double size) { return static_cast<std::int64_t>(size); }
};

} // namespace TarnwickKit::views
