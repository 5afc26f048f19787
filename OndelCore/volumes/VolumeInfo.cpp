#include "OndelCore/volumes/VolumeInfo.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/volumes/VolumeQuestions.h"

#include <algorithm>

namespace OndelCore::volumes {

namespace {

QString textOr(const std::optional<std::string>& text, const char* otherwise) {
    const QString given = QString::fromStdString(text.value_or(std::string()));
    return given.trimmed().isEmpty() ? QString::fromUtf8(otherwise) : given; // a label may be blank
}

/// a - b, at least 0, without overflow for any two numbers.
std::int64_t difference(std::int64_t a, std::int64_t b) {
    return std::max<std::int64_t>(saturatingSubtract(a, b), 0);
}

} // namespace

std::int64_t VolumeInfo::used() const { return difference(total, available); }

std::int64_t VolumeInfo::purgeable() const { return difference(available, rawAvailable); }

double VolumeInfo::usedFraction() const {
    if (total <= 0)
        return 0.0;
    return std::min(static_cast<double>(used()) / static_cast<double>(total), 1.0);
}

QString VolumeInfo::connection() const {
    if (isRemovable)
        return QStringLiteral("Removable");
    return isInternal ? QStringLiteral("Internal") : QStringLiteral("External");
}

std::optional<VolumeInfo> VolumeInfo::load(const Location& location) { return loadVolumeInfo(location, {}); }

std::optional<VolumeInfo> loadVolumeInfo(const Location& location, const platform::SystemSources& sources) {
    if (!location.isLocal())
        return std::nullopt;
    const auto resources = platform::volumeResources(location.path, sources);
    return resources ? std::optional(volumeInfoOf(*resources, resources->mountedFrom)) : std::nullopt;
}

VolumeInfo volumeInfoOf(const platform::VolumeResources& resources, std::optional<std::string> device) {
    VolumeInfo info;
    info.name = textOr(resources.name, "Volume");
    info.format = textOr(resources.format, "--");
    info.total = resources.total.value_or(0);
    info.rawAvailable = resources.available.value_or(0);
    info.available = std::max(info.rawAvailable, resources.availableForImportantUsage.value_or(0));
    info.isInternal = resources.isInternal.value_or(false);
    info.isRemovable = resources.isRemovable.value_or(false);
    info.isReadOnly = resources.isReadOnly.value_or(false);
    info.isEncrypted = resources.isEncrypted.value_or(false);
    info.volumeURL = resources.volumeRoot;
    info.device = std::move(device);
    return info;
}

} // namespace OndelCore::volumes
