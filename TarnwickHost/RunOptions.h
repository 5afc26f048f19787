#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "TarnwickHost/CommandLine.h"

#include <filesystem>
#include <optional>
#include <span>

namespace TarnwickHost {

enum class CardColors { light, dark };

/// What "run" was asked to do.
struct RunOptions {
    OndelCore::benchmark::BenchmarkPlan plan;
    std::filesystem::path folder; ///< the bytes as given
    bool json = false;
    bool handOff = false;           ///< write a run file
    std::optional<CardColors> card; ///< draw a picture
};

/// The options that "run" knows, for its parser and its --help.
std::span<const Option> runOptionTable();

/// Reads `line`, checked far enough that nothing which follows can be a slip of the keyboard: numbers within
/// what a machine can do, tests that exist, one folder that is there. Whether it can be written is left to
/// the engine, which finds out by writing. Fails: throws UsageError.
RunOptions runOptions(const CommandLine& line);

} // namespace TarnwickHost
