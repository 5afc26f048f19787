#include "TarnwickKit/model/runs/RunExport.h"

#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFields.h"
#include "TarnwickKit/model/runs/RunText.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Latency;
using OndelCore::benchmark::Remark;

namespace {

// --- CSV

/// A text as a cell. Characters that would end a line or steer a terminal are marks.
QString csvText(const QString& text) {
    constexpr QStringView formulaBeginnings = u"=+-@＝＋－＠";
    QString cell = harmless(text);
    // Spreadsheets evaluate formulas in quotes too, and drop blanks in front of them.
    const QStringView beginning = QStringView(cell).trimmed().left(1);
    if (!beginning.isEmpty() && formulaBeginnings.contains(beginning))
        cell.prepend(u'\'');
    if (!cell.contains(u',') && !cell.contains(u'"') && cell == cell.trimmed())
        return cell;
    return u'"' + cell.replace(u'"', u"\"\""_s) + u'"';
}

/// Cells of values that need neither quotes nor an apostrophe, as a run file has them.
QString csvCell(double value) {
    if (!std::isfinite(value))
        return {};
    JsonWriter json;
    json.number(value);
    return QString::fromLatin1(json.json());
}
QString csvCell(std::int64_t value) { return QString::number(value); }
QString csvCell(bool value) { return value ? u"true"_s : u"false"_s; }
QString csvCell(const QUuid& value) { return value.toString(QUuid::WithoutBraces).toUpper(); }
QString csvCell(const QString& value) { return csvText(value); }
QString csvCell(const QDateTime& value) { return value.toUTC().toString(Qt::ISODate); }
QString csvCell(RunRecord::Kind value) { return QString::fromLatin1(rawValue(value)); }
/// "invalid:fromMemory:sequentialRead note:virtualDisk"
QString csvCell(const std::vector<Remark>& remarks) {
    QStringList names;
    for (const Remark& remark : remarks) {
        QString words =
            QString::fromLatin1(rawValue(remark.weight)) + u':' + QString::fromLatin1(rawValue(remark.code));
        if (remark.test)
            words += u':' + name(*remark.test);
        names << words;
    }
    return names.join(u' ');
}
template <typename Value>
QString csvCell(const std::optional<Value>& value) {
    return value ? csvCell(*value) : QString();
}

/// Calls `visit(key, cell)` for each column of a run.
void visitColumns(const RunRecord& run, const std::function<void(const QString&, const QString&)>& visit) {
    visitFields(run, [&visit](std::string_view key, const auto& field) {
        using Field = std::remove_cvref_t<decltype(field)>;
        if constexpr (!std::is_same_v<Field, std::vector<RunSample>> &&
                      !std::is_same_v<Field, std::optional<RunEvidence>>)
            visit(QString::fromLatin1(key), csvCell(field));
    });
    const RunEvidence evidence = run.evidence.value_or(RunEvidence());
    visitFields(evidence, [&visit](std::string_view part, const auto& field) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field)>, std::optional<Latency>>) {
            const Latency latency = field.value_or(Latency());
            visitFields(latency, [&](std::string_view key, double seconds) {
                visit(QString::fromLatin1(part) + u'.' + QString::fromLatin1(key),
                      field ? csvCell(seconds) : QString());
            });
        }
    });
}

QByteArray csvLine(const QStringList& cells) { return cells.join(u',').toUtf8() + "\r\n"; }

QByteArray csvHeader() {
    QStringList keys;
    visitColumns({}, [&keys](const QString& key, const QString&) { keys << key; });
    return csvLine(keys);
}

// --- Markdown

/// Text as a cell of a table. What GitHub's dialect gives a meaning loses it.
QString markdownCell(const QString& text) {
    constexpr QStringView marks = u"\\`*_[]!|~#$^";
    constexpr QChar zeroWidthNonJoiner(0x200C);
    QString cell;
    for (const QChar character : harmless(text).simplified()) {
        if (character == u'&')
            cell += u"&amp;"_s;
        else if (character == u'<')
            cell += u"&lt;"_s;
        else if (character == u'>')
            cell += u"&gt;"_s;
        else if (marks.contains(character))
            cell += QString(u'\\') + character;
        else
            cell += character;
        if (character == u'@') // neither a mention nor an address
            cell += zeroWidthNonJoiner;
    }
    static const QRegularExpression host(u"(www)\\."_s, QRegularExpression::CaseInsensitiveOption);
    return cell.replace(u"://"_s, u"\\://"_s).replace(host, u"\\1\\."_s);
}

struct RunExport {
    Q_DECLARE_TR_FUNCTIONS(RunExport)
};

struct MarkdownRow {
    QString label;
    QStringList values; ///< one per run; "" where it has none
};

MarkdownRow markdownRow(const QString& label, const std::vector<RunRecord>& runs, auto valueOf) {
    MarkdownRow row{label, {}};
    for (const RunRecord& run : runs)
        row.values << valueOf(run);
    return row;
}

QString visibleParts(const std::vector<std::optional<QString>>& parts) {
    QStringList visible;
    for (const auto& part : parts)
        if (const auto text = visibleText(part))
            visible << *text;
    return visible.join(u" · "_s);
}

std::vector<MarkdownRow> factRows(const std::vector<RunRecord>& runs) {
    return {
        markdownRow(RunExport::tr("Run"), runs, [](const RunRecord& run) { return run.title(); }),
        markdownRow(RunExport::tr("Date"), runs,
                    [](const RunRecord& run) { return Format::runStamp(run.date, run.duration); }),
        markdownRow(RunExport::tr("Volume"), runs,
                    [](const RunRecord& run) {
                        return visibleParts({volumeNameText(run.volumeName), connectionText(run.connection)});
                    }),
        markdownRow(RunExport::tr("Drive"), runs,
                    [](const RunRecord& run) { return visibleParts({run.deviceModel, run.deviceProtocol}); }),
        markdownRow(RunExport::tr("Parameters"), runs,
                    [](const RunRecord& run) { return ComparisonChart::parameterSummary(run); }),
        markdownRow(RunExport::tr("System"), runs,
                    [](const RunRecord& run) { return systemNames(run).join(u" · "_s); }),
    };
}

struct MarkdownRate {
    BenchmarkTest test;
    FigureKind kind;
    std::optional<double> RunRecord::* value;
    std::optional<Latency> RunEvidence::* latency = nullptr;
};
constexpr MarkdownRate markdownRates[] = {
    {BenchmarkTest::sequentialWrite, FigureKind::sustained, &RunRecord::writeBps},
    {BenchmarkTest::sequentialWrite, FigureKind::peak, &RunRecord::writePeakBps},
    {BenchmarkTest::sequentialWrite, FigureKind::lowest, &RunRecord::writeMinBps},
    {BenchmarkTest::sequentialRead, FigureKind::sustained, &RunRecord::readBps},
    {BenchmarkTest::sequentialRead, FigureKind::peak, &RunRecord::readPeakBps},
    {BenchmarkTest::sequentialRead, FigureKind::lowest, &RunRecord::readMinBps},
    {BenchmarkTest::randomRead, FigureKind::sustained, &RunRecord::randomReadIOPS,
     &RunEvidence::randomReadLatency},
    {BenchmarkTest::randomWrite, FigureKind::sustained, &RunRecord::randomWriteIOPS,
     &RunEvidence::randomWriteLatency},
    {BenchmarkTest::fileOps, FigureKind::sustained, &RunRecord::fileOpsPerSec}};

QString markdownFigure(const MarkdownRate& rate, const RunRecord& run) {
    const auto value = run.*rate.value;
    if (!value)
        return {};
    const QString figure = rateFigure(rate.test, *value) + u' ' + rateUnit(rate.test);
    return run.isInvalid(rate.test) ? RunExport::tr("%1 (invalid)").arg(figure) : figure;
}

QString markdownLatency(const MarkdownRate& rate, const RunRecord& run) {
    const auto latency = run.evidence && rate.latency ? *run.evidence.*rate.latency : std::nullopt;
    return latency ? latencyFigures(*latency).join(u" · "_s) : QString();
}

std::vector<MarkdownRow> figureRows(const std::vector<RunRecord>& runs) {
    std::vector<MarkdownRow> rows;
    for (const MarkdownRate& rate : markdownRates) {
        const QString label = shortTitle(rate.test);
        rows.push_back(markdownRow(figureTitle(label, rate.kind), runs,
                                   [&](const RunRecord& run) { return markdownFigure(rate, run); }));
        rows.push_back(markdownRow(figureTitle(label, FigureKind::latency), runs,
                                   [&](const RunRecord& run) { return markdownLatency(rate, run); }));
    }
    rows.push_back(markdownRow(RunExport::tr("Remarks"), runs, [](const RunRecord& run) {
        return TarnwickReport{run}.remarks().join(u' ');
    }));
    return rows;
}

/// The rows without a value are left out.
std::vector<QStringList> markdownCells(const std::vector<RunRecord>& runs) {
    std::vector<MarkdownRow> rows = factRows(runs);
    std::ranges::move(figureRows(runs), std::back_inserter(rows));
    std::vector<QStringList> cells;
    for (const MarkdownRow& row : rows) {
        if (std::ranges::all_of(row.values, &QString::isEmpty))
            continue;
        QStringList line{markdownCell(row.label)};
        for (const QString& value : row.values)
            line << markdownCell(value);
        cells.push_back(line);
    }
    return cells;
}

std::vector<QStringList> turned(const std::vector<QStringList>& cells) {
    std::vector<QStringList> lines(static_cast<std::size_t>(cells.front().size()));
    for (const QStringList& row : cells)
        for (qsizetype column = 0; column < row.size(); ++column)
            lines[static_cast<std::size_t>(column)] << row[column];
    return lines;
}

} // namespace

QString markdownTable(const std::vector<RunRecord>& runs) {
    constexpr std::size_t mostBeside = 4;
    if (runs.empty())
        return {};
    std::vector<QStringList> cells = markdownCells(runs);
    if (runs.size() > mostBeside)
        cells = turned(cells);
    QString table;
    for (const QStringList& line : cells) {
        table += u"| "_s + line.join(u" | "_s) + u" |\n"_s;
        if (&line == &cells.front())
            table += u'|' + u" --- |"_s.repeated(line.size()) + u'\n';
    }
    return table;
}

QByteArray csvTable(const std::vector<RunRecord>& runs) {
    QByteArray table = csvHeader();
    for (const RunRecord& run : runs) {
        QStringList cells;
        visitColumns(run, [&cells](const QString&, const QString& cell) { cells << cell; });
        table += csvLine(cells);
    }
    return table;
}

QByteArray jsonList(const std::vector<RunRecord>& runs) {
    QByteArray list;
    for (const RunRecord& run : runs)
        if (const auto json = encodeRun(run))
            list += (list.isEmpty() ? "" : ",\n") + *json;
    return harmlessJson('[' + list + "]\n");
}

QByteArray exported(const std::vector<RunRecord>& runs, ExportForm form) {
    switch (form) {
    case ExportForm::text:
        return runTexts(runs).toUtf8();
    case ExportForm::markdown:
        return markdownTable(runs).toUtf8();
    case ExportForm::csv:
        return csvTable(runs);
    case ExportForm::json:
        return jsonList(runs);
    }
    return {};
}

bool isExport(QByteArrayView content) {
    // Later versions add keys at the end.
    const QByteArray oldestKeys = QByteArrayLiteral("id,volumeName,connection,date,duration,");
    return content.startsWith(oldestKeys) || decodeRun(content) || decodeRuns(content);
}

} // namespace TarnwickKit::model
