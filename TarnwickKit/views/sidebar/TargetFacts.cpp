#include "TarnwickKit/views/sidebar/TargetFacts.h"

#include "OndelDesktop/FileHandOff.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/views/style/LegibleText.h"

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

struct Feature {
    const char* name;
    Capability VolumeCapabilities::* flag;
};
constexpr std::array featureTable{
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Sparse files"),
            &VolumeCapabilities::supportsSparseFiles},
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Cloning"),
            &VolumeCapabilities::supportsCloning},
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Snapshots"),
            &VolumeCapabilities::supportsSnapshots},
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Hard links"),
            &VolumeCapabilities::supportsHardLinks},
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Symlinks"),
            &VolumeCapabilities::supportsSymbolicLinks},
    Feature{QT_TRANSLATE_NOOP("TarnwickKit::views::TargetFacts", "Xattr"),
            &VolumeCapabilities::supportsExtendedAttributes}};

QString letterCase(Capability isCaseSensitive) {
    if (!isCaseSensitive.isKnown())
        return TargetFacts::tr("Case not known");
    return isCaseSensitive ? TargetFacts::tr("Case-sensitive") : TargetFacts::tr("Case-insensitive");
}

QString orMissing(const std::optional<std::int64_t>& number, const QString& words) {
    return number ? words.arg(*number) : QStringLiteral("--");
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
            Q_EMIT self->told(tr("The folder couldn't be opened."));
    });
}

QString TargetFacts::volumeName() const {
    return m_analyzer && m_analyzer->volumeInfo() ? legible(m_analyzer->volumeInfo()->name) : QString();
}

QString TargetFacts::volumeLine() const {
    if (!m_analyzer || !m_analyzer->volumeInfo())
        return {};
    const auto& volume = *m_analyzer->volumeInfo();
    return volume.format + QStringLiteral(" · ") + Format::bytes(volume.total) + u' ' +
           m_analyzer->connectionLabel().toLower();
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
    add(tr("File system"), can.filesystemType.toUpper());
    add(tr("Format"), letterCase(can.isCaseSensitive));
    add(tr("Optimal I/O size"),
        can.optimalIOSize > 0 ? Format::block(can.optimalIOSize) : QStringLiteral("--"));
    add(tr("Block size"), Format::block(can.blockSize));
    add(tr("Max filename"), orMissing(can.maxNameLength, tr("%1 chars")));
    add(tr("Max path"), orMissing(can.maxPathLength, QStringLiteral("%1")));
    if (const auto& volume = m_analyzer->volumeInfo()) {
        add(tr("Capacity"), Format::bytes(volume->total));
        add(tr("Free"), Format::bytes(volume->available));
    }
    return items;
}

QStringList TargetFacts::features() const {
    QStringList names;
    if (hasCapabilities())
        for (const Feature& feature : featureTable)
            if ((*m_analyzer->capabilities()).*feature.flag)
                names.append(tr(feature.name));
    return names;
}

QStringList TargetFacts::unknownFeatures() const {
    QStringList names;
    if (hasCapabilities())
        for (const Feature& feature : featureTable)
            if (!((*m_analyzer->capabilities()).*feature.flag).isKnown())
                names.append(tr(feature.name));
    return names;
}

QString TargetFacts::featuresNote() const {
    const QStringList names = unknownFeatures();
    return names.isEmpty() ? QString() : tr("Not known: %1").arg(names.join(tr(", ")));
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
            items.append(InfoItem{QString::fromStdString(attribute.label),
                                  QString::fromStdString(attribute.value), attribute.warning});
    return items;
}

QString TargetFacts::healthNote() const {
    if (!m_analyzer || !m_analyzer->smart())
        return {};
    const QString note = legible(QString::fromStdString(m_analyzer->smart()->note));
    return hasHealth() || note.isEmpty() ? note : tr("No S.M.A.R.T. figures: %1").arg(note);
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
