#include "TarnwickKit/model/session/VolumeMenuItem.h"

#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QStringList>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

VolumeMenuItem VolumeMenuItem::from(const OndelCore::volumes::MountedVolume& volume) {
    VolumeMenuItem item;
    item.url = volume.url;
    item.name = volume.name;
    if (isNetworkFilesystem(volume.filesystemType))
        item.systemImage = u"externaldrive.connected.to.line.below"_s;
    else
        item.systemImage = volume.isInternal && !volume.isRemovable ? u"internaldrive"_s : u"externaldrive"_s;
    QStringList details;
    if (!volume.format.isEmpty())
        details << volume.format;
    if (volume.total.value_or(0) > 0)
        details << Format::bytes(*volume.total);
    item.detail = details.join(u" · "_s);
    return item;
}

} // namespace TarnwickKit::model
