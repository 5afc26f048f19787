#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
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
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)

public:
    double length = 0; ///< logical pixels; 0 without a bar
    QString text;
    bool isMarked = false; ///< the figure is not the disk's
    QString sentence;      ///< the same for assistive technology

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
    Q_PROPERTY(QString parameters MEMBER parameters CONSTANT)

public:
    QString legend;
    QString parameters;

    bool operator==(const ComparedRun&) const = default;
};

/// The compared runs, as a value for QML.
struct ComparedRuns {
    Q_GADGET
    QML_VALUE_TYPE(comparedRuns)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(QVariantList entries READ entries CONSTANT)
    Q_PROPERTY(bool hasMarks READ hasMarks CONSTANT)

public:
    std::vector<model::RunRecord> runs;

    int count() const { return static_cast<int>(runs.size()); }
    /// Whether a figure of any run is not the disk's.
    bool hasMarks() const;
    /// ComparedRun, one per run.
    QVariantList entries() const;
    /// ComparedMetric, for each metric that at least one run has a figure for. Units: `trackWidth` in logical
    /// pixels.
    Q_INVOKABLE QVariantList metrics(double trackWidth) const;

    bool operator==(const ComparedRuns&) const = default;
};

} // namespace TarnwickKit::views
