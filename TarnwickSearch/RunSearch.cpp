#include "TarnwickSearch/RunSearch.h"

#include "OndelCore/platform/process/StandardFolders.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/HistoryFile.h"
#include "TarnwickKit/model/runs/HistoryStore.h"

#include <algorithm>

namespace TarnwickSearch {

using namespace TarnwickKit::model;

namespace {

/// Rows of a search are short.
constexpr std::size_t mostFigures = 3;
constexpr int titleColumns = 80;

std::filesystem::path userHistory() {
    return OndelCore::platform::dataHome().value_or("/nonexistent") / "tools.ondel.tarnwick" / "history.json";
}

/// `text` without what makes no difference to a search.
QString searchable(const QString& text) {
    QString letters;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD))
        if (!character.isMark())
            letters.append(character);
    return letters.toCaseFolded();
}

QString figuresOf(const RunRecord& run) {
    QStringList figures;
    for (const CompareMetric& metric : ComparisonChart::activeMetrics({run})) {
        const auto figure = run.*metric.magnitude;
        if (figure && !run.isInvalid(metric.test) && std::size_t(figures.size()) < mostFigures)
            figures.append(metric.label + u' ' + metric.format(*figure) + u' ' + metric.unit);
    }
    return figures.join(QStringLiteral(" · "));
}

} // namespace

RunSearch::RunSearch(const std::optional<std::filesystem::path>& history)
    : m_file(std::make_unique<HistoryFile>(history.value_or(userHistory()), HistoryAccess())) {}

RunSearch::~RunSearch() = default;

/// Nothing is merged: what the file no longer has is gone.
void RunSearch::refresh() {
    if (auto runs = m_file->look({}, {}, HistoryStore::limit))
        m_runs = std::move(*runs);
}

QStringList RunSearch::idsOf(const QStringList& terms) {
    QStringList words;
    for (const QString& term : terms)
        if (const QString word = searchable(term.left(longestTerm + 1).trimmed()); !word.isEmpty())
            words.append(word);
    const auto isTooLong = [](const QString& word) { return word.size() > longestTerm; };
    if (words.isEmpty() || words.size() > mostTerms || std::ranges::any_of(words, isTooLong))
        return {};
    refresh();
    QStringList ids;
    for (const RunRecord& run : m_runs) {
        const QString text =
            searchable(run.title() + u'\n' + run.volumeName + u'\n' + run.deviceModel.value_or(QString()));
        if (std::ranges::all_of(words, [&](const QString& word) { return text.contains(word); }))
            ids.append(run.id.toString(QUuid::WithoutBraces));
    }
    return ids;
}

std::optional<RunLines> RunSearch::linesOf(const QString& id) {
    refresh();
    const auto run = std::ranges::find(m_runs, QUuid(id), &RunRecord::id);
    if (run == m_runs.end())
        return std::nullopt;
    QStringList facts{Format::shortStamp(run->date)};
    if (const QString figures = figuresOf(*run); !figures.isEmpty())
        facts.append(figures);
    return RunLines{fitted(run->title(), titleColumns), facts.join(QStringLiteral(" · "))};
}

} // namespace TarnwickSearch
