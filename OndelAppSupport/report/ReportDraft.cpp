#include "OndelAppSupport/report/ReportDraft.h"

#include "OndelCore/platform/storage/ReplaceFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <system_error>

namespace OndelAppSupport {

namespace fs = std::filesystem;
using Report = BugReporter::Report;

namespace {

constexpr qint64 longestDraft = 1 << 20; // bytes, more than anybody types

struct Field {
    QLatin1String key;
    QString Report::* text;
};
constexpr std::array<Field, 3> fields{{{QLatin1String("summary"), &Report::summary},
                                       {QLatin1String("details"), &Report::details},
                                       {QLatin1String("email"), &Report::email}}};
constexpr QLatin1String isFeatureKey("isFeature");

bool hasText(const Report& report) {
    return std::any_of(fields.begin(), fields.end(),
                       [&](const Field& field) { return !(report.*field.text).trimmed().isEmpty(); });
}

} // namespace

ReportDraft::ReportDraft(const std::optional<fs::path>& folder) {
    if (folder)
        m_file = *folder / "report-draft.json";
}

Report ReportDraft::take() const {
    Report report;
    QFile file;
    if (m_file)
        file.setFileName(QFile::decodeName(m_file->c_str()));
    if (!file.open(QIODevice::ReadOnly))
        return report;
    const QJsonObject draft = QJsonDocument::fromJson(file.read(longestDraft)).object();
    file.remove();
    report.isFeature = draft.value(isFeatureKey).toBool();
    for (const auto& [key, text] : fields)
        report.*text = draft.value(key).toString();
    return report;
}

void ReportDraft::keep(const Report& report) const {
    if (!m_file || !hasText(report))
        return;
    QJsonObject draft{{isFeatureKey, report.isFeature}};
    for (const auto& [key, text] : fields)
        draft.insert(key, report.*text);
    const QByteArray content = QJsonDocument(draft).toJson(QJsonDocument::Compact);
    OndelCore::platform::replaceFile(*m_file, {content.data(), static_cast<std::size_t>(content.size())},
                                     fs::perms::owner_read | fs::perms::owner_write,
                                     OndelCore::platform::Lasting::untilPowerLoss);
}

} // namespace OndelAppSupport
