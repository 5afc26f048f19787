#pragma once

#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/session/RunSession.h"
#include "TarnwickKit/model/session/SteadyCountdown.h"
#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/window/Dialogs.h"
#include "TarnwickKit/views/window/ModelObserver.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QQmlEngine>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>

class QQuickItem;

namespace TarnwickKit::views {

/// One state of the map's cells: a line of its legend.
struct CellKind {
    Q_GADGET
    QML_VALUE_TYPE(cellKind)
    /// One cell in that state, for a map of its own.
    Q_PROPERTY(QByteArray cell MEMBER cell CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)
    Q_PROPERTY(QString amount MEMBER amount CONSTANT)

public:
    QByteArray cell;
    QString name;
    QString amount; ///< how much of the range

    bool operator==(const CellKind&) const = default;
};

/// A check of the list.
struct CheckItem {
    Q_GADGET
    QML_VALUE_TYPE(checkItem)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString stamp MEMBER stamp CONSTANT)
    Q_PROPERTY(QString sentence MEMBER sentence CONSTANT)
    Q_PROPERTY(int verdict MEMBER verdict CONSTANT)

public:
    QString title;
    QString stamp;
    QString sentence;
    int verdict = 0; ///< a model::CapacityVerdict

    bool operator==(const CheckItem&) const = default;
};

/// The capacity check as its pane shows it: what can be chosen, how a check goes on, what it found, and the
/// former ones. Texts of a running check change about twice a second.
class LiveCheck : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)

    // --- Choices
    Q_PROPERTY(QList<QString> sizes READ sizes CONSTANT)
    Q_PROPERTY(int sizeIndex MEMBER m_sizeIndex NOTIFY planChanged)
    Q_PROPERTY(QList<QString> pauses READ pauses CONSTANT)
    Q_PROPERTY(int pauseIndex MEMBER m_pauseIndex NOTIFY planChanged)
    Q_PROPERTY(bool quick MEMBER m_quick NOTIFY planChanged)
    /// What will happen.
    Q_PROPERTY(QString announcement READ announcement NOTIFY planChanged)

    // --- The running check
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged)
    Q_PROPERTY(QString phase MEMBER m_phase NOTIFY told)
    Q_PROPERTY(QString figure MEMBER m_figure NOTIFY told)
    Q_PROPERTY(QString amount MEMBER m_amount NOTIFY told)
    /// Of the running pass, 0 to 1.
    Q_PROPERTY(double share MEMBER m_share NOTIFY told)
    Q_PROPERTY(QString runLine MEMBER m_runLine NOTIFY told)
    /// For assistive technology. Units: percent.
    Q_PROPERTY(int spokenPercent MEMBER m_spokenPercent NOTIFY spoken)

    // --- Of the running or the shown check
    Q_PROPERTY(QByteArray cells MEMBER m_cells NOTIFY mapChanged)
    /// Counts up when what rowText tells may be news: at most once a second.
    Q_PROPERTY(int revision MEMBER m_revision NOTIFY spoken)
    Q_PROPERTY(QList<TarnwickKit::views::CellKind> kinds MEMBER m_kinds NOTIFY mapChanged)
    /// Units: shares of the range, decimal megabytes per second.
    Q_PROPERTY(QList<QPointF> writeRates MEMBER m_writeRates NOTIFY mapChanged)
    Q_PROPERTY(QList<QPointF> readRates MEMBER m_readRates NOTIFY mapChanged)

    // --- The shown check
    Q_PROPERTY(bool hasRecord READ hasRecord NOTIFY recordChanged)
    Q_PROPERTY(QString title READ title NOTIFY recordChanged)
    Q_PROPERTY(QString sentence READ sentence NOTIFY recordChanged)
    Q_PROPERTY(int verdict READ verdict NOTIFY recordChanged)
    Q_PROPERTY(QStringList notes READ notes NOTIFY recordChanged)
    Q_PROPERTY(QList<TarnwickKit::views::InfoItem> facts READ facts NOTIFY recordChanged)
    Q_PROPERTY(QStringList places READ places NOTIFY recordChanged)
    /// Why the last check failed; "" if it did not.
    Q_PROPERTY(QString failureMessage READ failureMessage NOTIFY recordChanged)
    Q_PROPERTY(QString failureExplanation READ failureExplanation NOTIFY recordChanged)

    // --- The list, newest first
    Q_PROPERTY(QList<TarnwickKit::views::CheckItem> checks READ checks NOTIFY checksChanged)

public:
    enum Verdict { Good, Unproven, Bad };
    Q_ENUM(Verdict)

    explicit LiveCheck(QObject* parent = nullptr);
    ~LiveCheck() override;

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

    static QStringList sizes();
    static QStringList pauses();
    QString announcement() const;
    Q_SIGNAL void planChanged();

    Q_INVOKABLE void start();
    Q_INVOKABLE void stop();
    bool isRunning() const;
    Q_SIGNAL void isRunningChanged();
    Q_SIGNAL void told();
    Q_SIGNAL void spoken();
    Q_SIGNAL void mapChanged();

    /// A row of the map for assistive technology: its `count` cells from `first` on, of `all`. `revision`:
    /// whatever it is.
    Q_INVOKABLE QString rowText(int revision, int first, int count, int all) const;

    bool hasRecord() const { return m_record.has_value(); }
    QString title() const;
    QString sentence() const;
    int verdict() const;
    QStringList notes() const;
    QList<InfoItem> facts() const;
    QStringList places() const;
    const QString& failureMessage() const { return m_failure.message; }
    const QString& failureExplanation() const { return m_failure.explanation; }
    Q_SIGNAL void recordChanged();
    /// Shows a check of the list.
    Q_INVOKABLE void show(int index);
    /// Back to the choices.
    Q_INVOKABLE void forget();
    Q_INVOKABLE void copy();
    /// Asks for the file in a dialog over the item's window. Needs a QApplication.
    Q_INVOKABLE void save(QQuickItem* item);
    /// How copying and saving went.
    Q_SIGNAL void noted(const QString& sentence);

    QList<CheckItem> checks() const;
    Q_SIGNAL void checksChanged();

private:
    void begin();
    void read();
    void tell();
    void setRecord(std::optional<model::CapacityRecord> record);
    QString amountOf(OndelCore::capacity::BlockState state, std::int64_t cells) const;
    void setMap(const std::vector<OndelCore::capacity::BlockState>& states, std::int64_t range);

    ModelObserver m_analyzer;
    int m_sizeIndex = 0;
    int m_pauseIndex = 0;
    bool m_quick = false;
    QString m_phase;
    QString m_figure;
    QString m_amount;
    double m_share = 0;
    QString m_runLine;
    int m_spokenPercent = 0;
    QByteArray m_cells;
    double m_range = 0;
    int m_revision = 0;
    QList<CellKind> m_kinds;
    QList<QPointF> m_writeRates;
    QList<QPointF> m_readRates;
    std::optional<model::CapacityRecord> m_record;
    model::RunFailure m_failure;
    model::SteadyCountdown m_countdown;
    QElapsedTimer m_time;
    int m_looks = 0;
    std::unique_ptr<Dialogs> m_dialogs; ///< made by the first question
};

} // namespace TarnwickKit::views
