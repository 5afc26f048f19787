#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace OndelCore::volumes {

/// The provider of a `Location`. Only `local` is this machine's file system.
struct ProviderID {
    std::string text;

    static ProviderID local() { return {"local"}; }
    bool operator==(const ProviderID&) const = default;
};

/// The address of a place: a provider and a path there. The path need not be UTF-8.
struct Location {
    ProviderID provider;
    std::filesystem::path path;

    static Location local(std::filesystem::path path) { return {ProviderID::local(), std::move(path)}; }
    bool isLocal() const { return provider == ProviderID::local(); }
    bool operator==(const Location&) const = default;
};

} // namespace OndelCore::volumes
