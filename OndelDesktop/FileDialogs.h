#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QWindow;

namespace OndelDesktop {

/// What a file dialog is to ask for.
struct FileQuestion {
    enum class Kind { Folder, Files, NewFile };
    /// A kind of files: its name, and a pattern of file names ("*.txt") or a MIME type.
    struct Type {
        std::string name;
        std::string pattern;
        std::string mimeType;
    };

    Kind kind = Kind::Files;
    std::string title;
    std::string acceptLabel;                         ///< empty: the desktop's own
    std::pair<std::string, std::string> note;        ///< a subject and what is said of it; empty: none
    std::optional<std::filesystem::path> startingAt; ///< a folder; absent: the desktop decides
    std::string proposedName;                        ///< of a new file
    std::optional<Type> type;
};

/// The desktop's own file dialog, above a window of this program, which stays usable meanwhile. One at a
/// time.
///
/// Threads: the main one, with an event loop; no call waits for an answer.
class FileDialogs {
public:
    /// Names of files that exist, but for a new one. At least one.
    using Chosen = std::function<void(const std::vector<std::filesystem::path>&)>;
    using Unavailable = std::function<void()>;

    FileDialogs();
    /// Closes the dialog.
    ~FileDialogs();
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;

    /// A limit on the answer, which another program writes. More files are ignored.
    static constexpr std::size_t mostFiles = 1000;

    /// Closes the previous dialog. Calls nothing if the user dismisses the dialog. `unavailable`: the desktop
    /// has no file dialog, or it failed; it is not called before this returns.
    void ask(const FileQuestion& question, QWindow* parent, Chosen chosen, Unavailable unavailable);
    void close();

private:
    class Dialog;
    std::unique_ptr<Dialog> m_dialog;
};

} // namespace OndelDesktop
