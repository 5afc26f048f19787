#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace OndelCore::volumes {

/// Who keeps the place a `Location` names. Only `local` means this machine's file system.
struct ProviderID {
    std::string text;

    static ProviderID local() { return {"local"}; }
    bool operator==(const ProviderID&) const = default;
};

/// The address of a place: a provider and a path in its terms. The path's bytes need not be valid UTF-8.
struct Location {
    ProviderID provider;
    std::filesystem::path path;

    static Location local(std::filesystem::path path) { return {ProviderID::local(), std::move(path)}; }
    bool isLocal() const { return provider == ProviderID::local(); }
    bool operator==(const Location&) const = default;
};

} // namespace OndelCore::volumes
