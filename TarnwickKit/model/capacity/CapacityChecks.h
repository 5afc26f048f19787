#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"

#include <QObject>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace TarnwickKit::model {

/// The list of past checks, newest first, mirrored to a file of its own beside the history of runs. Other
/// programs may write it too: a save takes the lock, reads the file again, and puts what is new before what
/// is there. Damage, locks and symbolic links are treated as HistoryFile treats them.
///
/// Threads: the one that makes it. Fails: silently. Checks that cannot be written stay in memory until a save
/// succeeds.
class ONDEL_KIT CapacityChecks : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t limit = 20;

    /// `folder`: that of the history. Absent: the list is kept in memory only. Nothing is read yet.
    explicit CapacityChecks(const std::optional<std::filesystem::path>& folder, QObject* parent = nullptr);

    /// The first call reads the file.
    const std::vector<CapacityRecord>& checks();
    Q_SIGNAL void checksChanged();
    /// Puts a check at the top and drops the last ones beyond `limit`. A check with an id that is stored
    /// takes the other's place.
    void add(const CapacityRecord& check);
    /// Takes in what others have added.
    void refresh();

private:
    struct Content {
        std::vector<CapacityRecord> checks;
        std::optional<std::string> text; ///< absent: there is no readable file
        bool isDamaged = false;
    };

    static std::optional<Content> content(const std::filesystem::path& file);
    void take(const std::vector<CapacityRecord>& stored);
    bool write();

    std::optional<std::filesystem::path> m_file;
    std::vector<CapacityRecord> m_checks;
    std::vector<QUuid> m_unsaved;
    bool m_wasRead = false;
};

} // namespace TarnwickKit::model
