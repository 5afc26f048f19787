#include "OndelAppSupport/report/ReportForm.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

namespace OndelAppSupport {

namespace {

/// Spaces of every width and tabs, but not line breaks.
bool isBlank(QChar character) {
    return character == QLatin1Char('\t') || character.category() == QChar::Separator_Space;
}

QStringView trimmed(QStringView text) {
    const auto* first = std::ranges::find_if_not(text, isBlank);
    const auto* last = text.end();
    while (last != first && isBlank(*(last - 1)))
        --last;
    return {first, last};
}

/// Counts graphemes: an accented letter or an emoji of several code points is one.
bool hasCharacters(QStringView text, int least) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (least > 0 && finder.toNextBoundary() != -1)
        --least;
    return least <= 0;
}

} // namespace

ReportForm::ReportForm(Surroundings surroundings, QObject* parent)
    : QObject(parent)
    , m_surroundings(std::move(surroundings))
    , m_report(m_surroundings.draft.take()) {
    connect(&m_submission, &QFutureWatcher<void>::finished, this, &ReportForm::finish);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ReportForm::keepDraft);
}

ReportForm::~ReportForm() { m_submission.cancel(); }

bool ReportForm::canSend() const {
    return !m_submitting && hasCharacters(trimmed(m_report.summary), 3) &&
           hasCharacters(trimmed(m_report.details), 5);
}

QString ReportForm::diagnosticsText() {
    if (!m_report.diagnostics)
        m_report.diagnostics = m_surroundings.snapshot();
    return *m_report.diagnostics;
}

QString ReportForm::writePreview() {
    const auto file = Diagnostics::writeForPreview(diagnosticsText());
    return file ? QFile::decodeName(file->c_str()) : QString();
}

void ReportForm::send() {
    if (!canSend())
        return;
    m_submitting = true;
    m_error.reset();
    BugReporter::Report report = m_report;
    report.diagnostics.reset();
    if (!report.isFeature && report.attachDiagnostics)
        report.diagnostics = diagnosticsText();
    Q_EMIT changed();
    m_submission.setFuture(m_surroundings.submit(report));
}

void ReportForm::keepDraft() const {
    if (!m_sent)
        m_surroundings.draft.keep(m_report);
}

void ReportForm::finish() {
    m_submitting = false;
    try {
        m_submission.waitForFinished(); // rethrows
        m_sent = !m_submission.isCanceled();
    } catch (const ReportError& error) {
        m_error = error.localizedDescription();
    }
    Q_EMIT changed();
}

} // namespace OndelAppSupport
