#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "TarnwickHost/CommandLine.h"
#include "TarnwickHost/ExportOptions.h"

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
    bool handOff = false;             ///< write a run file into the temporary folder
    std::optional<OutputFile> output; ///< write a run file there
    bool keep = false;                ///< add it to the window's history
    std::optional<CardColors> card;   ///< draw a picture
};

/// The options that "run" knows, for its parser and its --help.
std::span<const Option> runOptionTable();

/// Reads and checks `line`: numbers within sensible limits, known tests, one existing folder. Whether the
/// folder can be written to is left to the engine. Fails: throws UsageError.
RunOptions runOptions(const CommandLine& line);

} // namespace TarnwickHost
