#include "support/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

namespace test {

TemporaryFolder::TemporaryFolder(const fs::path& parent) {
    std::string name = ((parent.empty() ? fs::temp_directory_path() : parent) / "ondel-test-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw fs::filesystem_error("mkdtemp", name, std::error_code(errno, std::generic_category()));
    m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

bool isOfATest(const fs::path& place) { return place.native().find("/ondel-") != std::string::npos; }

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace test
