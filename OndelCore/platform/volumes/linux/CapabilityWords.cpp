#include "OndelCore/platform/volumes/linux/CapabilityWords.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/volumes/linux/XfsGeometry.h"

#include <cstdint>

namespace OndelCore::platform {

namespace {

constexpr std::int64_t folderIgnoresCase = 0x40000000; // FS_CASEFOLD_FL of linux/fs.h

void readAttributes(CapabilityWords& words, const Mount& mount, const PathFacts& answers) {
    if (const auto keeps = answers.keepsUserAttributes)
        words.interfaces.state(interfaceExtendedAttributes, *keeps);
    // FUSE programs may accept an access list without storing it.
    const auto keeps = answers.keepsAccessLists;
    if (keeps && !(mount.type.starts_with("fuse") && *keeps))
        words.interfaces.state(interfaceExtendedSecurity, *keeps);
}

void readFolder(CapabilityWords& words, const PathFacts& answers) {
    if (answers.folderFlags.value_or(0) & folderIgnoresCase)
        words.format.state(formatCaseSensitive, false);
    if (const auto geometry = answers.xfsGeometryFlags) {
        words.interfaces.state(interfaceClone, (*geometry & xfsSharesBlocks) != 0);
        words.format.state(formatCaseSensitive, (*geometry & xfsIgnoresCase) == 0);
    }
}

/// The result of the look-up, if the type does not determine it.
void readLetterCase(CapabilityWord& format, std::string_view type, LetterCase found) {
    if (found == LetterCase::unknown)
        return;
    const bool isSensitive = found == LetterCase::sensitive;
    if (!format.knows(formatCaseSensitive))
        format.state(formatCaseSensitive, isSensitive);
    const bool isDisc = type == "iso9660"; // plain names are case-sensitive and not preserved
    if (!format.knows(formatCasePreserving) && found != LetterCase::ignored && !isDisc)
        format.state(formatCasePreserving, true);
}

/// Ext3 and Ext4 may have no journal, or be mounted without using it.
void askJournal(CapabilityWords& words, const Mount& mount, const SystemSources& sources) {
    if (hasMountOption(mount.superOptions, "norecovery") || hasMountOption(mount.superOptions, "noload")) {
        words.format.state(formatJournalActive, false);
        return;
    }
    const auto device = blockDevice(mount.device, sources.sysfs);
    if (!device)
        return;
    std::string folder = device->folder.filename().string();
    if (const auto task = readAttribute(sources.sysfs / "fs/ext4" / folder / "journal_task"))
        words.format.state(formatJournalActive, *task != "<none>");
}

/// The option "norock" means that Joliet names are used or Rock Ridge was disabled. Without it the names are
/// Rock Ridge's or plain ones, and plain ones are shown in lower case.
void readDisc(CapabilityWord& format, const Mount& mount, const PathFacts& answers) {
    const auto has = [&](std::string_view option) { return hasMountOption(mount.superOptions, option); };
    format.state(formatCaseSensitive, has("check=s"));
    if (has("norock")) {
        format.state(formatCasePreserving, has("check=r"));
        format.state(formatSymbolicLinks, false);
        format.state(formatHardLinks, false);
    } else if (answers.hasCapitals && has("map=n")) {
        format.state(formatCasePreserving, true);
        format.state(formatSymbolicLinks, true);
    }
}

void readOptions(CapabilityWords& words, std::string_view type, const Mount& mount) {
    const auto has = [&](std::string_view option) { return hasMountOption(mount.superOptions, option); };
    if (has("nocase") || has("caseinsensitive"))
        words.format.state(formatCaseSensitive, false);
    if (has("casesensitive"))
        words.format.state(formatCaseSensitive, true);
    if (type == "cifs" && (has("mfsymlinks") || has("unix") || has("posix")))
        words.format.state(formatSymbolicLinks, true);
}

} // namespace

CapabilityWords capabilityWords(const FileSystemFacts* facts, const Mount& mount, const PathFacts& answers,
                                const SystemSources& sources) {
    CapabilityWords words = facts ? facts->capabilities : CapabilityWords();
    const std::string_view type = facts ? facts->type : std::string_view();
    readOptions(words, type, mount);
    if (type == "iso9660")
        readDisc(words.format, mount, answers);
    readAttributes(words, mount, answers);
    readFolder(words, answers);
    readLetterCase(words.format, type, answers.letterCase);
    if (type == "ext3" || type == "ext4")
        askJournal(words, mount, sources);
    if (facts && facts->reach == FileSystemReach::device)
        words.format.state(formatSealed, blockStack(mount, sources).isSealed);
    if (facts && facts->reach == FileSystemReach::memory)
        words.format.state(formatSealed, false);
    return words;
}

} // namespace OndelCore::platform
