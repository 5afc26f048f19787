#include "TarnwickKit/views/sidebar/TargetFacts.h"

#include "OndelDesktop/FileHandOff.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/HealthText.h"
#include "TarnwickKit/model/format/Plural.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <QCoreApplication>
#include <QFile>
#include <QPointer>
#include <QUrl>

#include <array>

namespace TarnwickKit::views {

using model::AnalyzerModel;
using OndelCore::health::DiskSMART;
using OndelCore::volumes::Capability;
using OndelCore::volumes::VolumeCapabilities;
namespace Format = model::Format;

namespace {

struct TargetFactsText {
    Q_DECLARE_TR_FUNCTIONS(TargetFactsText)
};

struct Feature {
    const char* name;
    Capability VolumeCapabilities::* flag;
};
constexpr std::array featureTable{
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Sparse files"), &VolumeCapabilities::supportsSparseFiles},
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Cloning"), &VolumeCapabilities::supportsCloning},
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Snapshots"), &VolumeCapabilities::supportsSnapshots},
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Hard links"), &VolumeCapabilities::supportsHardLinks},
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Symlinks"), &VolumeCapabilities::supportsSymbolicLinks},
    Feature{QT_TRANSLATE_NOOP("TargetFactsText", "Xattr"), &VolumeCapabilities::supportsExtendedAttributes}};

QString letterCase(Capability isCaseSensitive) {
    if (!isCaseSensitive.isKnown())
        return TargetFactsText::tr("Case not known");
    return isCaseSensitive ? TargetFactsText::tr("Case-sensitive") : TargetFactsText::tr("Case-insensitive");
}

/// "Ext4 · 460 GiB internal"
QString lineOf(const OndelCore::volumes::VolumeInfo& volume, const QString& connection) {
    //: %1 is a kind of file system, %2 the volume's size
    const char* line = QT_TRANSLATE_NOOP("TargetFactsText", "%1 · %2 external");
    if (connection == QStringLiteral("Internal"))
        //: %1 is a kind of file system, %2 the volume's size
        line = QT_TRANSLATE_NOOP("TargetFactsText", "%1 · %2 internal");
    else if (connection == QStringLiteral("Removable"))
        //: %1 is a kind of file system, %2 the volume's size
        line = QT_TRANSLATE_NOOP("TargetFactsText", "%1 · %2 removable");
    else if (connection == QStringLiteral("Network"))
        //: %1 is a kind of file system, %2 the volume's size
        line = QT_TRANSLATE_NOOP("TargetFactsText", "%1 · %2 network");
    return TargetFactsText::tr(line).arg(model::volumeFormatText(volume.format), Format::bytes(volume.total));
}

} // namespace

void TargetFacts::setAnalyzer(AnalyzerModel* analyzer) {
    if (!turnTo(m_analyzer, analyzer, this))
        return;
    if (m_analyzer) {
        connect(m_analyzer, &AnalyzerModel::targetFolderChanged, this, &TargetFacts::folderChanged);
        connect(m_analyzer, &AnalyzerModel::volumeChanged, this, &TargetFacts::volumeChanged);
        connect(m_analyzer, &AnalyzerModel::smartChanged, this, &TargetFacts::healthChanged);
    }
    Q_EMIT analyzerChanged();
    Q_EMIT folderChanged();
    Q_EMIT volumeChanged();
    Q_EMIT healthChanged();
}

QString TargetFacts::folder() const {
    return m_analyzer ? legiblePath(m_analyzer->targetFolderText()) : QString();
}

void TargetFacts::showFolder() {
    if (!m_analyzer || !m_analyzer->targetFolder())
        return;
    OndelDesktop::showFolder(*m_analyzer->targetFolder(), [self = QPointer(this)] {
        if (self)
            Q_EMIT self->told(TargetFactsText::tr("The folder couldn't be opened."));
    });
}

QString TargetFacts::volumeName() const {
    return m_analyzer && m_analyzer->volumeInfo()
               ? legible(model::volumeNameText(m_analyzer->volumeInfo()->name))
               : QString();
}

QString TargetFacts::volumeLine() const {
    if (!m_analyzer || !m_analyzer->volumeInfo())
        return {};
    return lineOf(*m_analyzer->volumeInfo(), m_analyzer->connectionLabel());
}

int TargetFacts::volumeKind() const {
    return m_analyzer ? static_cast<int>(m_analyzer->selectedVolumeKind()) : 0;
}

QList<InfoItem> TargetFacts::capabilities() const {
    QList<InfoItem> items;
    if (!hasCapabilities())
        return items;
    const VolumeCapabilities& can = *m_analyzer->capabilities();
    const auto add = [&](const QString& label, const QString& value) {
        items.append(InfoItem{label, value});
    };
    add(TargetFactsText::tr("File system"), can.filesystemType.toUpper());
    add(TargetFactsText::tr("Format"), letterCase(can.isCaseSensitive));
    add(TargetFactsText::tr("Optimal I/O size"),
        can.optimalIOSize > 0 ? Format::block(can.optimalIOSize) : QStringLiteral("--"));
    add(TargetFactsText::tr("Block size"), Format::block(can.blockSize));
    add(TargetFactsText::tr("Max filename"),
        can.maxNameLength ? TargetFactsText::tr("%1 chars", nullptr, model::plural(*can.maxNameLength))
                                .arg(*can.maxNameLength)
                          : QStringLiteral("--"));
    add(TargetFactsText::tr("Max path"),
        can.maxPathLength ? QString::number(*can.maxPathLength) : QStringLiteral("--"));
    if (const auto& volume = m_analyzer->volumeInfo()) {
        add(TargetFactsText::tr("Capacity"), Format::bytes(volume->total));
        //: The free space of the volume
        add(TargetFactsText::tr("Free"), Format::bytes(volume->available));
    }
    return items;
}

QStringList TargetFacts::features() const {
    QStringList names;
    if (hasCapabilities())
        for (const Feature& feature : featureTable)
            if ((*m_analyzer->capabilities()).*feature.flag)
                names.append(TargetFactsText::tr(feature.name));
    return names;
}

QStringList TargetFacts::unknownFeatures() const {
    QStringList names;
    if (hasCapabilities())
        for (const Feature& feature : featureTable)
            if (!((*m_analyzer->capabilities()).*feature.flag).isKnown())
                names.append(TargetFactsText::tr(feature.name));
    return names;
}

QString TargetFacts::featuresNote() const {
    const QStringList names = unknownFeatures();
    return names.isEmpty() ? QString()
                           : TargetFactsText::tr("Not known: %1").arg(names.join(QStringLiteral(", ")));
}

bool TargetFacts::hasHealth() const {
    return m_analyzer && m_analyzer->smart() && m_analyzer->smart()->isSupported();
}

bool TargetFacts::isFailing() const {
    return hasHealth() && m_analyzer->smart()->status == DiskSMART::Status::failing;
}

QList<InfoItem> TargetFacts::health() const {
    QList<InfoItem> items;
    if (hasHealth())
        for (const DiskSMART::Attribute& attribute : m_analyzer->smart()->attributes)
            items.append(
                InfoItem{model::healthLabel(attribute), model::healthValue(attribute), attribute.warning});
    return items;
}

QString TargetFacts::healthNote() const {
    if (!m_analyzer || !m_analyzer->smart())
        return {};
    const QString note = legible(model::healthSource(m_analyzer->smart()->note));
    return hasHealth() || note.isEmpty() ? note : TargetFactsText::tr("No S.M.A.R.T. figures: %1").arg(note);
}

QVariantList TargetFacts::mountedVolumes() {
    QVariantList items;
    for (const model::VolumeMenuItem& volume : AnalyzerModel::mountedVolumeItems()) {
        const QString name = legible(volume.name);
        const QString label =
            volume.detail.isEmpty() ? name : keptApart(name) + QStringLiteral("  —  ") + volume.detail;
        items.append(QVariant::fromValue(VolumeItem{
            QUrl::fromLocalFile(QFile::decodeName(volume.url.c_str())), label, volume.systemImage}));
    }
    return items;
}

} // namespace TarnwickKit::views
