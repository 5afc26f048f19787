#pragma once

#include "OndelAppSupport/report/BugReporter.h"
#include "OndelAppSupport/report/Diagnostics.h"
#include "OndelAppSupport/report/ReportDraft.h"

#include <QFutureWatcher>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace OndelAppSupport {

/// A report while the user writes it and while it is sent. A failed send keeps all text. The destructor
/// cancels a submission. When the application ends, the text is stored for the next form. Threads: main.
class ReportForm : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isFeature READ isFeature WRITE setFeature NOTIFY changed)
    Q_PROPERTY(QString summary READ summary WRITE setSummary NOTIFY changed)
    Q_PROPERTY(QString details READ details WRITE setDetails NOTIFY changed)
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY changed)
    Q_PROPERTY(bool attachDiagnostics READ attachDiagnostics WRITE setAttachDiagnostics NOTIFY changed)
    Q_PROPERTY(bool submitting READ isSubmitting NOTIFY changed)
    /// Whether the last attempt failed, and why.
    Q_PROPERTY(bool failed READ hasFailed NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(bool sent READ isSent NOTIFY changed)
    Q_PROPERTY(bool canSend READ canSend NOTIFY changed)
public:
    /// Replaced by tests.
    struct Surroundings {
        std::function<QFuture<void>(const BugReporter::Report&)> submit = [](const auto& report) {
            return BugReporter::submit(report);
        };
        std::function<QString()> snapshot = &Diagnostics::snapshot;
        ReportDraft draft{};
    };

    explicit ReportForm(QObject* parent = nullptr)
        : ReportForm(Surroundings(), parent) {}
    explicit ReportForm(Surroundings surroundings, QObject* parent = nullptr);
    ~ReportForm() override;

    bool isFeature() const { return m_report.isFeature; }
    void setFeature(bool isFeature) { set(m_report.isFeature, isFeature); }
    QString summary() const { return m_report.summary; }
    void setSummary(const QString& summary) { set(m_report.summary, summary); }
    QString details() const { return m_report.details; }
    void setDetails(const QString& details) { set(m_report.details, details); }
    QString email() const { return m_report.email; }
    void setEmail(const QString& email) { set(m_report.email, email); }
    bool attachDiagnostics() const { return m_report.attachDiagnostics; }
    void setAttachDiagnostics(bool attach) { set(m_report.attachDiagnostics, attach); }
    bool isSubmitting() const { return m_submitting; }
    bool hasFailed() const { return m_error.has_value(); }
    QString errorText() const { return m_error.value_or(QString()); }
    bool isSent() const { return m_sent; }
    Q_SIGNAL void changed();

    /// Requires a summary of three characters and a description of five, without surrounding blanks.
    bool canSend() const;

    /// The text that is shown and sent. Taken at the first call and unchanged from then on.
    QString diagnosticsText();

    /// The path of a file with diagnosticsText. Fails: empty.
    Q_INVOKABLE QString writePreview();

    /// Does nothing while canSend is false.
    Q_INVOKABLE void send();

    /// Called when the application ends. Does nothing for a report that was sent.
    void keepDraft() const;

private:
    template <typename Value>
    void set(Value& member, const Value& value) {
        if (member == value)
            return;
        member = value;
        Q_EMIT changed();
    }
    void finish();

    const Surroundings m_surroundings;
    BugReporter::Report m_report;
    QFutureWatcher<void> m_submission;
    bool m_submitting = false;
    bool m_sent = false;
    std::optional<QString> m_error;
};

} // namespace OndelAppSupport
