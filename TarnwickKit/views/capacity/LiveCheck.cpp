#include "TarnwickKit/views/capacity/LiveCheck.h"

#include "TarnwickKit/model/capacity/CapacityChecks.h"
#include "TarnwickKit/model/capacity/CapacityReport.h"
#include "TarnwickKit/model/capacity/CapacitySession.h"
#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/views/runs/LiveRun.h"
#include "TarnwickKit/views/sharing/FileWriting.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace TarnwickKit::views {

using OndelCore::capacity::BlockState;
using OndelCore::capacity::CapacityPhase;
using OndelCore::capacity::CapacityPlan;

namespace Format = model::Format;

namespace {

struct LiveCheckText {
    Q_DECLARE_TR_FUNCTIONS(LiveCheckText)
};

constexpr std::int64_t gibibyte = 1073741824;
/// The first choice is all free space.
constexpr std::array<std::int64_t, 4> checkSizes{gibibyte, 4 * gibibyte, 16 * gibibyte, 64 * gibibyte};
constexpr std::array<std::chrono::seconds, 3> checkPauses{std::chrono::minutes(10), std::chrono::hours(1),
                                                          std::chrono::hours(24)};
constexpr int looksPerTelling = 3; ///< the session looks five times a second
constexpr int looksPerSpeaking = 6;

QList<QPointF> pointsOf(const std::vector<model::CapacityCourse::Point>& points) {
    QList<QPointF> list;
    for (const auto& [place, rate] : points)
        list.append({place, rate / 1e6});
    return list;
}

QList<QPointF> pointsOf(const OndelCore::capacity::CapacityPass& pass, std::int64_t range) {
    QList<QPointF> list;
    for (const auto& [offset, rate] : pass.rates)
        if (range > 0)
            list.append({static_cast<double>(offset) / static_cast<double>(range), rate / 1e6});
    return list;
}

/// 0: the result does not tell.
std::int64_t bytesIn(BlockState state, const OndelCore::capacity::CapacityResult& result) {
    switch (state) {
    case BlockState::untouched:
    case BlockState::written:
        break;
    case BlockState::verified:
        return result.verified;
    case BlockState::wrong:
        return result.wrong;
    case BlockState::unreadable:
        return result.unreadable;
    case BlockState::writeFailed:
        return result.writeFailed;
    }
    return 0;
}

QByteArray bytesOf(const std::vector<BlockState>& states) {
    QByteArray bytes;
    bytes.reserve(std::ssize(states));
    for (const BlockState state : states)
        bytes.append(static_cast<char>(state));
    return bytes;
}

} // namespace

LiveCheck::LiveCheck(QObject* parent)
    : QObject(parent) {
    m_time.start();
}

LiveCheck::~LiveCheck() = default;

void LiveCheck::setAnalyzer(model::AnalyzerModel* analyzer) {
    if (m_analyzer)
        m_analyzer->capacity().disconnect(this);
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    if (analyzer) {
        model::CapacitySession& session = analyzer->capacity();
        connect(&session, &model::CapacitySession::started, this, &LiveCheck::begin);
        connect(&session, &model::CapacitySession::progressed, this, &LiveCheck::read);
        connect(&session, &model::CapacitySession::recorded, this,
                [this](const model::CapacityRecord& record) { setRecord(record); });
        connect(&session, &model::CapacitySession::ended, this, [this, &session] {
            m_failure = session.failure();
            Q_EMIT isRunningChanged();
            Q_EMIT recordChanged();
        });
        connect(&analyzer->capacityChecks(), &model::CapacityChecks::checksChanged, this,
                &LiveCheck::checksChanged);
        connect(analyzer, &model::AnalyzerModel::volumeChanged, this, &LiveCheck::planChanged);
    }
    Q_EMIT analyzerChanged();
    Q_EMIT planChanged();
    Q_EMIT checksChanged();
    Q_EMIT isRunningChanged();
    if (isRunning())
        begin();
    else if (analyzer && analyzer->capacity().last())
        setRecord(analyzer->capacity().last());
}

// --- Choices

QStringList LiveCheck::sizes() {
    QStringList labels{LiveCheckText::tr("All free space")};
    for (const std::int64_t size : checkSizes)
        labels << Format::block(size);
    return labels;
}

QStringList LiveCheck::pauses() {
    //: Whether everything is read a second time
    QStringList labels{LiveCheckText::tr("No")};
    for (const std::chrono::seconds pause : checkPauses)
        labels << LiveCheckText::tr("After %1").arg(model::spanText(static_cast<double>(pause.count())));
    return labels;
}

QString LiveCheck::announcement() const {
    const auto& info = m_analyzer ? m_analyzer->volumeInfo() : std::nullopt;
    if (m_quick)
        return LiveCheckText::tr(
            "Samples all over the chosen space are written, read back and removed. It takes seconds, "
            "finds most false capacities, and proves nothing if it finds none.");
    if (m_sizeIndex > 0)
        return LiveCheckText::tr(
                   "%1 are written, read back, compared and removed. Your files are not touched.")
            .arg(sizes().value(m_sizeIndex));
    if (!info)
        return LiveCheckText::tr(
            "All free space is written, read back, compared and removed. Your files are not touched.");
    const std::int64_t planned =
        std::max<std::int64_t>(0, info->rawAvailable - CapacityPlan::defaultLeaveFree);
    return LiveCheckText::
        tr("All free space, about %1, is written, read back, compared and removed. On a large volume that "
           "takes hours; meanwhile the volume is full for other programs. Your files are not touched.")
            .arg(Format::bytes(planned));
}

void LiveCheck::start() {
    CapacityPlan plan;
    if (m_sizeIndex > 0)
        plan.size = checkSizes.at(static_cast<std::size_t>(m_sizeIndex - 1));
    if (m_pauseIndex > 0)
        plan.again = checkPauses.at(static_cast<std::size_t>(m_pauseIndex - 1));
    plan.isQuick = m_quick;
    if (m_analyzer)
        m_analyzer->startCheck(plan);
}

// --- The running check

bool LiveCheck::isRunning() const { return m_analyzer && m_analyzer->isChecking(); }

void LiveCheck::stop() {
    if (m_analyzer)
        m_analyzer->capacity().stop();
}

void LiveCheck::begin() {
    m_countdown.reset();
    m_looks = 0;
    m_failure = {};
    m_writeRates.clear();
    m_readRates.clear();
    m_record.reset();
    setMap({}, 0);
    Q_EMIT recordChanged();
    tell();
    read();
    Q_EMIT isRunningChanged();
}

void LiveCheck::read() {
    const model::CapacityCourse& course = m_analyzer->capacity().course();
    const auto& last = course.last();
    if (!last)
        return;
    if (const auto left = course.timeLeft())
        m_countdown.note(static_cast<double>(m_time.elapsed()) / 1000, *left);
    m_writeRates = pointsOf(course.writeRates());
    m_readRates = pointsOf(course.readRates());
    if (last->cells)
        setMap(last->cells->states,
               last->cells->cellBytes * static_cast<std::int64_t>(last->cells->states.size()));
    if (m_looks % looksPerTelling == 0)
        tell();
    if (m_looks % looksPerSpeaking == 0) {
        m_spokenPercent = static_cast<int>(100 * m_share);
        ++m_revision;
        Q_EMIT spoken();
    }
    ++m_looks;
}

void LiveCheck::tell() {
    const model::CapacityCourse& course = m_analyzer->capacity().course();
    const auto& last = course.last();
    const bool isWaiting = last && last->phase == CapacityPhase::waiting;
    m_phase = model::capacityPhaseName(last ? last->phase : CapacityPhase::preparing);
    m_figure = course.rate() ? Format::rate(*course.rate()) : QString();
    m_share = last && last->total > 0
                  ? std::clamp(static_cast<double>(last->done) / static_cast<double>(last->total), 0.0, 1.0)
                  : 0;
    const auto shown = [&](std::int64_t value) {
        return isWaiting ? model::spanText(static_cast<double>(value)) : Format::bytes(value);
    };
    m_amount = last && last->total > 0
                   ? LiveCheckText::tr("%1 of %2").arg(shown(last->done), shown(last->total))
                   : QString();
    QStringList parts;
    if (const auto fraction = course.fraction())
        parts << LiveCheckText::tr("%1 % of the check").arg(static_cast<int>(100 * *fraction));
    if (const auto left = m_countdown.left(static_cast<double>(m_time.elapsed()) / 1000))
        parts << timeLeftText(*left, true);
    m_runLine = parts.join(QStringLiteral(" · "));
    Q_EMIT told();
}

// --- The map

void LiveCheck::setMap(const std::vector<BlockState>& states, std::int64_t range) {
    m_cells = bytesOf(states);
    m_range = static_cast<double>(range);
    m_kinds.clear();
    for (const BlockState state : {BlockState::untouched, BlockState::written, BlockState::verified,
                                   BlockState::wrong, BlockState::unreadable, BlockState::writeFailed}) {
        const auto count = std::ranges::count(states, state);
        if (count > 0)
            m_kinds.append({QByteArray(1, static_cast<char>(state)), model::blockStateName(state),
                            amountOf(state, count)});
    }
    Q_EMIT mapChanged();
}

/// Of what is wrong a cell tells no more than that there is some; a record knows how much. `cells`: those in
/// this state.
QString LiveCheck::amountOf(BlockState state, std::int64_t cells) const {
    const std::int64_t known = m_record && !m_record->wasStopped ? bytesIn(state, m_record->result) : 0;
    if (known > 0)
        return Format::bytes(known);
    if (state >= BlockState::wrong)
        return cells == 1 ? LiveCheckText::tr("in one part")
                          : LiveCheckText::tr("in %1 parts", nullptr, static_cast<int>(cells)).arg(cells);
    return Format::bytes(static_cast<std::int64_t>(m_range * static_cast<double>(cells) /
                                                   static_cast<double>(m_cells.size())));
}

QString LiveCheck::rowText(int /*revision*/, int first, int count, int all) const {
    if (all <= 0 || m_cells.isEmpty())
        return {};
    const auto place = [&](int cell) {
        return Format::bytes(static_cast<std::int64_t>(m_range * std::min(cell, all) / all));
    };
    const auto edge = [&](int cell) { return m_cells.size() * std::min(cell, all) / all; };
    std::array<int, 6> counts{};
    for (qsizetype index = edge(first); index < edge(first + count); ++index)
        ++counts.at(static_cast<std::size_t>(std::clamp<int>(m_cells.at(index), 0, 5)));
    QStringList states;
    for (std::size_t state = 0; state < counts.size(); ++state)
        if (counts.at(state) > 0)
            states << model::blockStateName(static_cast<BlockState>(state));
    //: %1 and %2 are places on the volume, %3 what was found between them
    return LiveCheckText::tr("%1 to %2: %3")
        .arg(place(first), place(first + count), states.join(QStringLiteral(", ")));
}

// --- The shown check

void LiveCheck::setRecord(std::optional<model::CapacityRecord> record) {
    m_record = std::move(record);
    m_failure = {};
    if (m_record) {
        const auto& result = m_record->result;
        // The cells' range is a little longer than what was planned.
        m_writeRates = pointsOf(result.write, result.planned);
        m_readRates = pointsOf(result.read, result.planned);
        setMap(result.cells.states, result.planned);
        ++m_revision;
        Q_EMIT spoken();
    }
    Q_EMIT recordChanged();
}

void LiveCheck::show(int index) {
    const auto& list = m_analyzer->capacityChecks().checks();
    if (index >= 0 && index < std::ssize(list) && !isRunning())
        setRecord(list[static_cast<std::size_t>(index)]);
}

void LiveCheck::forget() { setRecord(std::nullopt); }

QString LiveCheck::title() const { return m_record ? m_record->title() : QString(); }
QString LiveCheck::sentence() const { return m_record ? model::capacitySentence(*m_record) : QString(); }
int LiveCheck::verdict() const { return m_record ? static_cast<int>(m_record->verdict()) : Unproven; }
QStringList LiveCheck::notes() const { return m_record ? model::capacityNotes(*m_record) : QStringList(); }

QList<InfoItem> LiveCheck::facts() const {
    QList<InfoItem> items;
    if (!m_record)
        return items;
    for (const auto& [label, value, isWarning] : model::capacityFacts(*m_record))
        items.append({label, value, isWarning});
    QString when = Format::runStamp(m_record->date, 0).section(QStringLiteral(" · "), 0, 1);
    if (m_record->result.duration > 0) // of a stopped check it is not known
        when += QStringLiteral(" · ") + model::spanText(m_record->result.duration);
    //: When the check began, and how long it took
    items.append({LiveCheckText::tr("Checked"), when});
    return items;
}

QStringList LiveCheck::places() const {
    constexpr std::size_t most = 12;
    return m_record ? model::capacityDefects(*m_record, most) : QStringList();
}

void LiveCheck::copy() {
    if (!m_record)
        return;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(model::capacityReport(*m_record));
    Q_EMIT noted(clipboard->ownsClipboard() ? LiveCheckText::tr("Text copied")
                                            : LiveCheckText::tr("The text couldn't be copied."));
}

void LiveCheck::save(QQuickItem* item) {
    if (!m_record)
        return;
    if (!m_dialogs)
        m_dialogs = std::make_unique<Dialogs>();
    m_dialogs->setWindow(item->window());
    const QByteArray text = model::capacityReport(*m_record).toUtf8();
    m_dialogs->askForTextFile(model::capacityReportName(*m_record), [this, text](
                                                                        const std::filesystem::path& target) {
        writeLater(this, target, text, [this, target](const std::error_code& error) {
            Q_EMIT noted(
                error ? LiveCheckText::tr("The file couldn't be saved: %1")
                            .arg(QString::fromStdString(error.message()))
                      : LiveCheckText::tr("Saved as “%1”").arg(QFile::decodeName(target.filename().c_str())));
        });
    });
}

// --- The list

QList<CheckItem> LiveCheck::checks() const {
    QList<CheckItem> items;
    if (m_analyzer)
        for (const model::CapacityRecord& check : m_analyzer->capacityChecks().checks())
            items.append({check.title(), Format::shortStamp(check.date), model::capacitySentence(check),
                          static_cast<int>(check.verdict())});
    return items;
}

} // namespace TarnwickKit::views
