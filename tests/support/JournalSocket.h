#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <optional>
#include <string>

namespace test {

/// Listens where a journal would. Owner: the object; the socket goes with it.
class JournalSocket {
public:
    JournalSocket();

    /// As a journal that stops and starts again.
    void close();
    void open();

    std::filesystem::path path() const { return m_folder.path() / "socket"; }

    /// The next entry as it was sent, read from the memory file if it came in one; absent when none waits.
    std::optional<std::string> take();

private:
    TemporaryFolder m_folder;
    OndelCore::platform::FileDescriptor m_socket;
};

} // namespace test
