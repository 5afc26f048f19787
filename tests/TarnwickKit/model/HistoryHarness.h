#pragma once

#include "SampleRun.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

inline void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

inline std::vector<fs::path> filesBeginningWith(const fs::path& folder, const char* prefix) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().native().starts_with(prefix))
            found.push_back(entry.path());
    }
    return found;
}

inline std::vector<QUuid> idsOf(const std::vector<RunRecord>& runs) {
    std::vector<QUuid> ids;
    for (const RunRecord& run : runs)
        ids.push_back(run.id);
    return ids;
}

/// Runs `work`, and nothing after it, in a process of its own.
inline pid_t inChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    return child;
}

/// A folder with a history of its own.
struct HistoryFolder : testing::Test {
    test::TemporaryFolder folder;
    fs::path file = folder.path() / "history.json";

    std::optional<std::vector<RunRecord>> stored() const {
        const auto content = readRunFile(file);
        return content ? decodeRuns(*content) : std::nullopt;
    }
    std::vector<fs::path> keptFiles() const {
        return filesBeginningWith(folder.path(), "history.unreadable-");
    }
};

} // namespace TarnwickKit::model
