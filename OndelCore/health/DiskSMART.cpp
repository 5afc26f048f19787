#include "OndelCore/health/DiskSMART.h"

namespace {

void mix(std::size_t& seed, std::size_t hash) {
    seed ^= hash + 0x9e3779b97f4a7c15U + (seed << 6U) + (seed >> 2U);
}

} // namespace

using OndelCore::health::DiskSMART;

std::size_t
std::hash<DiskSMART::Attribute>::operator()(const DiskSMART::Attribute& attribute) const noexcept {
    std::size_t seed = std::hash<std::string>{}(attribute.label);
    mix(seed, std::hash<std::string>{}(attribute.value));
    mix(seed, std::hash<bool>{}(attribute.warning));
    return seed;
}

std::size_t std::hash<DiskSMART>::operator()(const DiskSMART& smart) const noexcept {
    std::size_t seed = std::hash<DiskSMART::Status>{}(smart.status);
    mix(seed, std::hash<std::string>{}(smart.kind));
    for (const DiskSMART::Attribute& attribute : smart.attributes)
        mix(seed, std::hash<DiskSMART::Attribute>{}(attribute));
    mix(seed, std::hash<std::string>{}(smart.note));
    return seed;
}
