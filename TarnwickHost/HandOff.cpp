#include "TarnwickHost/HandOff.h"

#include "TarnwickKit/model/runs/TarnwickReport.h"

using namespace OndelCore::benchmark;
using namespace OndelCore::volumes;

namespace TarnwickHost {

HandOff::HandOff(const std::filesystem::path& folder)
    : m_volume(VolumeInfo::load(Location::local(folder)))
    , m_capabilities(VolumeCapabilities::probe(Location::local(folder)))
    , m_date(QDateTime::currentDateTimeUtc()) {}

std::optional<std::filesystem::path> HandOff::write(const BenchmarkPlan& plan,
                                                    const BenchmarkResult& result) const {
    return TarnwickKit::model::TarnwickReport::from(result, m_volume, m_capabilities, m_date, plan)
        .handoffFile();
}

} // namespace TarnwickHost
