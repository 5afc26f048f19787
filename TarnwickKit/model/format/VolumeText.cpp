#include "TarnwickKit/model/format/VolumeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>

namespace TarnwickKit::model {

namespace {

struct VolumeText {
    Q_DECLARE_TR_FUNCTIONS(VolumeText)
};

constexpr const char* connections[] = {
    //: How a volume is attached: the drive is built into the machine
    QT_TRANSLATE_NOOP("VolumeText", "Internal"),
    //: How a volume is attached: the drive has a case and a cable of its own
    QT_TRANSLATE_NOOP("VolumeText", "External"),
    //: How a volume is attached: a stick, a card or a disc
    QT_TRANSLATE_NOOP("VolumeText", "Removable"),
    //: How a volume is attached: a server keeps it
    QT_TRANSLATE_NOOP("VolumeText", "Network"),
};
constexpr const char* missingNames[] = {
    //: Stands for the name of a volume that has none
    QT_TRANSLATE_NOOP("VolumeText", "Volume"),
    //: The name of the volume at "/"
    QT_TRANSLATE_NOOP("VolumeText", "Root"),
};
constexpr const char* formats[] = {
    //: A kind of file system: a folder that a virtual machine shares with its host
    QT_TRANSLATE_NOOP("VolumeText", "Shared Folder"),
};
constexpr const char* sizes[] = {
    //: The size of a test: as much as there is free space
    QT_TRANSLATE_NOOP("VolumeText", "Fill disk"),
};

/// `text` translated, if it is one of ours.
QString ownWord(const QString& text, std::span<const char* const> ours) {
    const auto found =
        std::ranges::find_if(ours, [&text](const char* each) { return text == QLatin1StringView(each); });
    return found == ours.end() ? text : VolumeText::tr(*found);
}

} // namespace

QString connectionText(const QString& recorded) { return ownWord(recorded, connections); }

QString volumeNameText(const QString& name) { return ownWord(name, missingNames); }

QString volumeFormatText(const QString& format) { return ownWord(format, formats); }

QString testSizeText(const QString& recorded) { return ownWord(recorded, sizes); }

} // namespace TarnwickKit::model
