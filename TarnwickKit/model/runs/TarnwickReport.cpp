#include "TarnwickKit/model/runs/TarnwickReport.h"

#include "OndelCore/platform/process/ApplicationBus.h"
#include "OndelCore/platform/storage/PrivateFolder.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/RemarkText.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <algorithm>
#include <functional>
#include <string>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

namespace {

std::vector<QPointF> curve(const std::vector<RunSample>& samples) {
    std::vector<QPointF> points;
    points.reserve(samples.size());
    for (const RunSample& sample : samples)
        points.emplace_back(sample.t, sample.v / 1e6);
    return points;
}

} // namespace

TarnwickReport TarnwickReport::from(const OndelCore::benchmark::BenchmarkResult& result,
                                    const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                                    const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                                    const QDateTime& date, const OndelCore::benchmark::BenchmarkPlan& plan) {
    return {RunRecord::from(result, volume, capabilities, date, plan)};
}

std::vector<QPointF> TarnwickReport::writeCurve() const { return curve(run.writeSamples); }

std::vector<QPointF> TarnwickReport::readCurve() const { return curve(run.readSamples); }

std::optional<QString> TarnwickReport::drive() const {
    QStringList names;
    for (const auto& name : {run.deviceModel, run.deviceProtocol})
        if (const auto visible = visibleText(name))
            names << *visible;
    return names.isEmpty() ? std::nullopt : std::optional(names.join(QStringLiteral(" · ")));
}

QStringList TarnwickReport::remarks() const {
    auto worstFirst = run.remarks.value_or(std::vector<OndelCore::benchmark::Remark>());
    std::ranges::stable_sort(worstFirst, std::greater(), &OndelCore::benchmark::Remark::weight);
    QStringList lines;
    for (const auto& remark : worstFirst) {
        const QString sentence = remarkSentence(remark);
        if (sentence.isEmpty())
            continue;
        const QString whole =
            remark.test ? aboutTest(title(*remark.test, run.randomBlock.value_or(0)), sentence) : sentence;
        lines << remarkWeightWord(remark.weight) + QStringLiteral(" · ") + whole;
    }
    return lines;
}

std::optional<fs::path> TarnwickReport::handoffFile() const {
    const auto folder = OndelCore::platform::privateTemporaryFolder();
    const auto json = encodeRun(run);
    if (!folder || !json)
        return std::nullopt;
    const std::string id = run.id.toString(QUuid::WithoutBraces).toUpper().toStdString();
    const fs::path path = *folder / (id + "." + std::string(TarnwickFile::runExtension));
    if (OndelCore::platform::replaceFile(path, {json->data(), static_cast<std::size_t>(json->size())},
                                         fs::perms::owner_read | fs::perms::owner_write))
        return std::nullopt;
    return path;
}

bool TarnwickReport::openInApplication(std::chrono::milliseconds patience) const {
    const auto file = handoffFile();
    return file && OndelCore::platform::openWithApplication("tools.ondel.tarnwick", *file, patience);
}

} // namespace TarnwickKit::model
