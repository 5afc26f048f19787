#include "TarnwickKit/model/format/HealthText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <span>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::health::DiskSMART;

namespace {

struct HealthText {
    Q_DECLARE_TR_FUNCTIONS(HealthText)
};

const QString diskSeparator = u" · "_s;

constexpr const char* healthLabels[] = {
    QT_TRANSLATE_NOOP("HealthText", "Critical warning"),
    QT_TRANSLATE_NOOP("HealthText", "Temperature"),
    QT_TRANSLATE_NOOP("HealthText", "Life used"),
    //: Of a solid state drive: how much of its reserve of memory cells is left
    QT_TRANSLATE_NOOP("HealthText", "Spare available"),
    //: Of a solid state drive: the least reserve of memory cells before it warns
    QT_TRANSLATE_NOOP("HealthText", "Spare threshold"),
    QT_TRANSLATE_NOOP("HealthText", "Power-on time"),
    QT_TRANSLATE_NOOP("HealthText", "Power cycles"),
    //: How often the heads were parked and loaded again
    QT_TRANSLATE_NOOP("HealthText", "Load cycles"),
    QT_TRANSLATE_NOOP("HealthText", "Unsafe shutdowns"),
    QT_TRANSLATE_NOOP("HealthText", "Data written"),
    QT_TRANSLATE_NOOP("HealthText", "Data read"),
    QT_TRANSLATE_NOOP("HealthText", "Host read commands"),
    QT_TRANSLATE_NOOP("HealthText", "Host write commands"),
    //: How long the drive's controller was busy
    QT_TRANSLATE_NOOP("HealthText", "Controller busy"),
    QT_TRANSLATE_NOOP("HealthText", "Reallocated sectors"),
    QT_TRANSLATE_NOOP("HealthText", "Pending sectors"),
    QT_TRANSLATE_NOOP("HealthText", "Uncorrectable sectors"),
    //: Errors that the drive reported and could not correct
    QT_TRANSLATE_NOOP("HealthText", "Reported uncorrectable"),
    QT_TRANSLATE_NOOP("HealthText", "Spin retries"),
    QT_TRANSLATE_NOOP("HealthText", "Interface CRC errors"),
    QT_TRANSLATE_NOOP("HealthText", "Media errors"),
    QT_TRANSLATE_NOOP("HealthText", "Error log entries"),
    //: The drive's own verdict follows
    QT_TRANSLATE_NOOP("HealthText", "Status"),
    QT_TRANSLATE_NOOP("HealthText", "Disks"),
};

/// What stands for %1 and %2 in a text of the engine. Sentences are translated in turn.
enum class Parts { names, sentences };
struct Pattern {
    const char* english;
    Parts parts = Parts::names;
};

// In a row.
constexpr Pattern healthValues[] = {
    {QT_TRANSLATE_NOOP("HealthText", "Spare below threshold")},
    {QT_TRANSLATE_NOOP("HealthText", "Temperature")},
    {QT_TRANSLATE_NOOP("HealthText", "Reliability degraded")},
    {QT_TRANSLATE_NOOP("HealthText", "Read-only")},
    {QT_TRANSLATE_NOOP("HealthText", "Backup failed")},
    //: What a drive warns of, in a bit that is not known
    {QT_TRANSLATE_NOOP("HealthText", "Unknown")},
    //: How long a drive has been switched on; %1 is a number with one decimal, as 1.2
    {QT_TRANSLATE_NOOP("HealthText", "%1 years")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 of %2 disks answered")},
};

// Where figures come from, or why there are none: %1 is a disk's name, as sda. The longer one stands first
// where one begins like another.
constexpr Pattern healthSources[] = {
    {QT_TRANSLATE_NOOP("HealthText", "no device is behind this path")},
    //: A clause without a full stop, as the others on disks; %1 is the name of a disk, as sda
    {QT_TRANSLATE_NOOP("HealthText", "no disk is behind %1")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 is no block device")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 does not tell whether it sleeps, so it was left alone")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 is asleep and was left alone")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 has no S.M.A.R.T., or it is switched off")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 has no S.M.A.R.T. interface")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 does not pass S.M.A.R.T. commands on")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 does not give its NVMe health log")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 may only be asked by an administrator")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 is out of this process's reach")},
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 does not answer")},
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 does not answer for %1")},
    {QT_TRANSLATE_NOOP("HealthText", "%1 does not answer")},
    //: %1 is the version of UDisks2
    {QT_TRANSLATE_NOOP("HealthText",
                       "UDisks2 %1 does not read the health of NVMe drives (version 2.10 does)")},
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 has no health figures of %1")},
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 has no health verdict on %1")},
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 knows no drive behind %1")},
    {QT_TRANSLATE_NOOP("HealthText", "ATA S.M.A.R.T. of %1, which gave its verdict without figures")},
    {QT_TRANSLATE_NOOP("HealthText", "ATA S.M.A.R.T. of %1")},
    {QT_TRANSLATE_NOOP("HealthText", "NVMe health log of %1")},
    //: Where figures come from: UDisks2 has read disk %1 some minutes ago
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 for %1, read %2 min ago")},
    //: Where figures come from: UDisks2 has read disk %1
    {QT_TRANSLATE_NOOP("HealthText", "UDisks2 for %1")},
};

// Several of the above on one line. Names of devices have no blanks.
constexpr Pattern healthJoints[] = {
    //: Two sentences: how many disks answered, and why others did not
    {QT_TRANSLATE_NOOP("HealthText", "%1: %2"), Parts::sentences},
    //: Two sentences, the first on one disk and the second on another
    {QT_TRANSLATE_NOOP("HealthText", "%1; %2"), Parts::sentences},
    //: Two sentences: why a disk gives no figures itself, and why the system's service gives none
    {QT_TRANSLATE_NOOP("HealthText", "%1, and %2"), Parts::sentences},
};

QString translated(const QString& english);

/// What stands for %1 and %2; absent where the text is another.
std::optional<QStringList> partsOf(const QString& english, const Pattern& pattern) {
    const QString part = pattern.parts == Parts::names ? u"(\\S+)"_s : u"(.+)"_s;
    QString expression = QRegularExpression::escape(QString::fromUtf8(pattern.english));
    expression.replace(u"\\%1"_s, pattern.parts == Parts::names ? part : u"(.+?)"_s).replace(u"\\%2"_s, part);
    const auto found = QRegularExpression(QRegularExpression::anchoredPattern(expression)).match(english);
    return found.hasMatch() ? std::optional(found.capturedTexts().mid(1)) : std::nullopt;
}

std::optional<QString> translatedBy(const Pattern& pattern, const QString& english) {
    const auto parts = partsOf(english, pattern);
    if (!parts)
        return std::nullopt;
    QString text = HealthText::tr(pattern.english);
    if (parts->size() == 2) {
        const bool areSentences = pattern.parts == Parts::sentences;
        return areSentences ? text.arg(translated(parts->at(0)), translated(parts->at(1)))
                            : text.arg(parts->at(0), parts->at(1));
    }
    return parts->isEmpty() ? text : text.arg(parts->front());
}

QString translated(const QString& english) {
    for (const auto& table : {std::span<const Pattern>(healthValues), std::span<const Pattern>(healthSources),
                              std::span<const Pattern>(healthJoints)})
        for (const Pattern& pattern : table)
            if (const auto text = translatedBy(pattern, english))
                return *text;
    return english;
}

/// "12 days" with the plural of the user's language.
std::optional<QString> daysText(const QString& value) {
    static const QRegularExpression pattern(u"^(\\d+) days$"_s);
    const auto found = pattern.match(value);
    return found.hasMatch()
               ? std::optional(
                     HealthText::tr("%1 days", nullptr, found.captured(1).toInt()).arg(found.captured(1)))
               : std::nullopt;
}

} // namespace

QString healthLabel(const DiskSMART::Attribute& row) {
    const QString label = QString::fromStdString(row.label);
    const qsizetype behindDisk = label.lastIndexOf(diskSeparator);
    const qsizetype begin = behindDisk < 0 ? 0 : behindDisk + diskSeparator.size();
    const QString name = label.mid(begin);
    const auto* const found = std::ranges::find_if(
        healthLabels, [&name](const char* each) { return name == QLatin1StringView(each); });
    return found == std::ranges::end(healthLabels) ? label : label.left(begin) + HealthText::tr(*found);
}

QString healthValue(const DiskSMART::Attribute& row) {
    const QString value = QString::fromStdString(row.value);
    if (value == "Failing"_L1)
        return healthVerdict(DiskSMART::Status::failing);
    if (value == "Verified"_L1)
        return healthVerdict(DiskSMART::Status::verified);
    if (const auto text = daysText(value))
        return *text;
    QStringList warnings;
    for (const QString& each : value.split(u", "_s))
        warnings << translated(each);
    return warnings.join(u", "_s);
}

QString healthVerdict(DiskSMART::Status status) {
    if (status == DiskSMART::Status::failing) {
        //: The drive's own verdict: it is going to break
        return HealthText::tr("Failing");
    }
    //: The drive's own verdict: it finds itself sound
    return HealthText::tr("Verified");
}

QString healthSource(const std::string& english) { return translated(QString::fromStdString(english)); }

} // namespace TarnwickKit::model
