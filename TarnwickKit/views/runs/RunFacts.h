#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/views/runs/ComparedRuns.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUuid>
#include <QVariantList>

namespace TarnwickKit::views {

/// A labelled figure in a list.
struct InfoItem {
    Q_GADGET
    QML_VALUE_TYPE(infoItem)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString value MEMBER value CONSTANT)
    Q_PROPERTY(bool warning MEMBER warning CONSTANT)
    Q_PROPERTY(QString note MEMBER note CONSTANT)
    Q_PROPERTY(QString test MEMBER test CONSTANT)

public:
    QString label;
    QString value;
    bool warning = false; ///< the value is a concern; of a run's figure: it is not the disk's
    QString note{};       ///< what stands below the value, "" for nothing
    QString test{};       ///< the raw value of the test whose figure it is, "" for other values

    bool operator==(const InfoItem&) const = default;
};

/// A remark on a run's figures, in words.
struct RemarkItem {
    Q_GADGET
    QML_VALUE_TYPE(remarkItem)
    Q_PROPERTY(int weight MEMBER weight CONSTANT)
    Q_PROPERTY(QString word MEMBER word CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)
    Q_PROPERTY(QString advice MEMBER advice CONSTANT)

public:
    int weight = 0; ///< OndelCore::benchmark::RemarkWeight
    QString word;   ///< for the weight
    QString symbol; ///< for the weight
    QString sentence;
    QString advice; ///< "" without one

    bool operator==(const RemarkItem&) const = default;
};

/// A saved run as the views show it, in words and figures.
/// Units: bytes per second, operations per second; NaN when absent.
struct RunFacts {
    Q_GADGET
    QML_VALUE_TYPE(runFacts)
    Q_PROPERTY(QVariant id READ idValue CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString screenshotTitle MEMBER screenshotTitle CONSTANT)
    Q_PROPERTY(QString screenshotSubtitle MEMBER screenshotSubtitle CONSTANT)
    Q_PROPERTY(QString badgeSymbol MEMBER badgeSymbol CONSTANT)
    Q_PROPERTY(QString customTitle MEMBER customTitle CONSTANT)
    Q_PROPERTY(QString stamp MEMBER stamp CONSTANT)
    Q_PROPERTY(QString shortStamp MEMBER shortStamp CONSTANT)
    Q_PROPERTY(QString connection MEMBER connection CONSTANT)
    Q_PROPERTY(bool isNetwork MEMBER isNetwork CONSTANT)
    Q_PROPERTY(int kind MEMBER kind CONSTANT)
    Q_PROPERTY(double writeBps MEMBER writeBps CONSTANT)
    Q_PROPERTY(double writePeakBps MEMBER writePeakBps CONSTANT)
    Q_PROPERTY(double writeMinBps MEMBER writeMinBps CONSTANT)
    Q_PROPERTY(double readBps MEMBER readBps CONSTANT)
    Q_PROPERTY(double readPeakBps MEMBER readPeakBps CONSTANT)
    Q_PROPERTY(double readMinBps MEMBER readMinBps CONSTANT)
    Q_PROPERTY(bool isWriteMarked MEMBER isWriteMarked CONSTANT)
    Q_PROPERTY(bool isReadMarked MEMBER isReadMarked CONSTANT)
    Q_PROPERTY(QString markedLine MEMBER markedLine CONSTANT)
    Q_PROPERTY(QVariantList minor MEMBER minor CONSTANT)
    Q_PROPERTY(QVariantList captured MEMBER captured CONSTANT)

public:
    QVariant idValue() const { return id; }

    QUuid id;
    QString title;           ///< the user's title, else the volume's name
    QString screenshotTitle; ///< the headline on images
    QString screenshotSubtitle;
    QString badgeSymbol; ///< stands for `kind`
    QString customTitle; ///< "" without one
    QString stamp;       ///< date, time and length
    QString shortStamp;
    QString connection;
    bool isNetwork = false;
    int kind = 0; ///< RunRecord::Kind; network also when the file system is a network one
    double writeBps = 0;
    double writePeakBps = 0;
    double writeMinBps = 0;
    double readBps = 0;
    double readPeakBps = 0;
    double readMinBps = 0;
    bool isWriteMarked = false; ///< the rate is not the disk's
    bool isReadMarked = false;
    QString markedLine;    ///< which figures are not the disk's, in one line; "" if none
    QVariantList minor;    ///< InfoItem: random and file operations
    QVariantList captured; ///< InfoItem: the drive, the volume and the settings at the time

    static RunFacts of(const model::RunRecord& run);
};

/// The drive that a run measured, "Samsung SSD 990 PRO · NVMe"; without what `title` tells already, and ""
/// where the model is not known.
QString driveOf(const model::RunRecord& run, const QString& title = {});

/// What a run's evidence says about its figures, in the order of the record. A remark with impossible numbers
/// says nothing and is left out.
QList<RemarkItem> remarkItems(const model::RunRecord& run);

/// Gives QML the facts of a run: `Runs.facts(run)`.
class Runs : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    Q_INVOKABLE static TarnwickKit::views::RunFacts facts(const TarnwickKit::model::RunRecord& run) {
        return RunFacts::of(run);
    }
    /// For actions with several runs: a run by itself, and the whole history, newest first.
    Q_INVOKABLE static TarnwickKit::views::ComparedRuns alone(const TarnwickKit::model::RunRecord& run) {
        return {{run}};
    }
    Q_INVOKABLE static TarnwickKit::views::ComparedRuns
    history(const TarnwickKit::model::AnalyzerModel* analyzer);
    /// RemarkItem: see remarkItems.
    Q_INVOKABLE static QVariantList remarks(const TarnwickKit::model::RunRecord& run);
    Q_INVOKABLE static bool hasRemarks(const TarnwickKit::model::RunRecord& run);
    /// Copies the figures as tab-separated text. Answers a sentence about the outcome.
    Q_INVOKABLE static QString copyFigures(const TarnwickKit::model::RunRecord& run);
    /// A figure as assistive technology reads it, with the mark that it may have.
    Q_INVOKABLE static QString spoken(const QString& figure, bool isMarked);
};

} // namespace TarnwickKit::views
