#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <vector>

namespace TarnwickKit::views {

/// One run's bar in a metric's group.
struct ComparedBar {
    Q_GADGET
    QML_VALUE_TYPE(comparedBar)
    Q_PROPERTY(double length MEMBER length CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(bool isMarked MEMBER isMarked CONSTANT)
    Q_PROPERTY(QString difference MEMBER difference CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)

public:
    double length = 0; ///< logical pixels; 0 without a bar
    QString text;
    bool isMarked = false; ///< the figure is not the disk's
    QString difference;    ///< from the reference's figure; "" if there is none
    QString sentence;      ///< all this for assistive technology

    bool operator==(const ComparedBar&) const = default;
};

struct ComparedMetric {
    Q_GADGET
    QML_VALUE_TYPE(comparedMetric)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString unit MEMBER unit CONSTANT)
    Q_PROPERTY(QVariantList bars MEMBER bars CONSTANT)

public:
    QString label;
    QString unit;
    QVariantList bars; ///< ComparedBar, one per run

    bool operator==(const ComparedMetric&) const = default;
};

/// The chart's texts about one run.
struct ComparedRun {
    Q_GADGET
    QML_VALUE_TYPE(comparedRun)
    Q_PROPERTY(QString legend MEMBER legend CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString parameters MEMBER parameters CONSTANT)

public:
    QString legend;
    QString name; ///< title and date
    QString parameters;

    bool operator==(const ComparedRun&) const = default;
};

/// The compared runs, as a value for QML.
struct ComparedRuns {
    Q_GADGET
    QML_VALUE_TYPE(comparedRuns)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QVariantList entries READ entries CONSTANT)
    Q_PROPERTY(QList<QString> names READ names CONSTANT)
    Q_PROPERTY(bool hasWriteCurves READ hasWriteCurves CONSTANT)
    Q_PROPERTY(bool hasReadCurves READ hasReadCurves CONSTANT)
    Q_PROPERTY(bool hasMarks READ hasMarks CONSTANT)

public:
    std::vector<model::RunRecord> runs;

    int count() const { return static_cast<int>(runs.size()); }
    /// Whether a figure of any run is not the disk's.
    bool hasMarks() const;
    /// ComparedRun, one per run.
    QVariantList entries() const;
    /// A name for each run.
    QStringList names() const;
    bool hasWriteCurves() const { return hasCurves(&model::RunRecord::writeSamples); }
    bool hasReadCurves() const { return hasCurves(&model::RunRecord::readSamples); }
    /// ComparedMetric, for each metric that at least one run has a figure for. Units: `trackWidth` in logical
    /// pixels. `reference`: the index of the run that differences are relative to; -1 for none.
    Q_INVOKABLE QVariantList metrics(double trackWidth, int reference) const;

    bool operator==(const ComparedRuns&) const = default;

private:
    bool hasCurves(std::vector<model::RunSample> model::RunRecord::* curve) const;
};

} // namespace TarnwickKit::views
