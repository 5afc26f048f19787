#pragma once

#include <filesystem>
#include <string>

namespace test {

/// A folder of its own for one test, removed with everything in it when the object goes.
/// Owner: the object. Fails: throws std::filesystem::filesystem_error when it cannot be made.
class TemporaryFolder {
public:
    /// `parent`: where to make it; the test program's own temporary folder when empty.
    explicit TemporaryFolder(const std::filesystem::path& parent = {});
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

/// Whether a place lies in a temporary folder of some test, of this program or of another.
bool isOfATest(const std::filesystem::path& place);

/// All bytes of a file; none if it cannot be read.
std::string contentOf(const std::filesystem::path& file);

} // namespace test
