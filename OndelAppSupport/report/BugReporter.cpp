#include "OndelAppSupport/report/BugReporter.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/report/ReportSubmission.h"
#include "OndelCore/platform/process/MachineFacts.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <string>

namespace OndelAppSupport {

namespace platform = OndelCore::platform;

namespace {

QString textOr(const std::optional<std::string>& text, const char* otherwise) {
    return text ? QString::fromStdString(*text) : QString::fromUtf8(otherwise);
}

} // namespace

BugReporter::Service BugReporter::Service::maker() {
    return {.endpoint = BugReporter::endpoint(), .secret = sharedSecret(InformationDictionary::main())};
}

QVariantMap BugReporter::payload(const Report& report) {
    QVariantMap payload{
        {QStringLiteral("app"), AppIdentity::current().reportID},
        {QStringLiteral("type"), report.isFeature ? QStringLiteral("feature") : QStringLiteral("bug")},
        {QStringLiteral("summary"), report.summary},
        {QStringLiteral("details"), report.details},
        {QStringLiteral("email"), report.email},
        {QStringLiteral("appVersion"), appVersion()},
        {QStringLiteral("osVersion"), osVersion()},
        {QStringLiteral("hardware"), hardwareSummary()}};
    if (!report.isFeature && report.attachDiagnostics && report.diagnostics)
        payload.insert(QStringLiteral("diagnostics"), *report.diagnostics);
    return payload;
}

QFuture<void> BugReporter::submit(const Report& report, const Service& service) {
    const QJsonObject object = QJsonObject::fromVariantMap(payload(report));
    return ReportSubmission::start(QJsonDocument(object).toJson(QJsonDocument::Compact), service);
}

QUrl BugReporter::endpoint() { return makerServiceAddress(QStringLiteral("/api/report")); }

QString BugReporter::appVersion(const InformationDictionary& build) {
    const QString unknown = QStringLiteral("?");
    return build.string(QStringLiteral("CFBundleShortVersionString")).value_or(unknown) +
           QStringLiteral(" (") + build.string(QStringLiteral("CFBundleVersion")).value_or(unknown) +
           QStringLiteral(")");
}

QString BugReporter::osVersion(const std::filesystem::path& root) {
    return textOr(platform::systemName(root), "Linux"); // os-release(5) names it as the default
}

QString BugReporter::hardwareModel(const std::filesystem::path& root) {
    return textOr(platform::hardwareModel(root), "unknown");
}

QString BugReporter::chip(const std::filesystem::path& root) {
    return textOr(platform::processorName(root), "unknown");
}

std::int64_t BugReporter::memoryGB(const std::filesystem::path& root) {
    constexpr double gigabyte = 1024.0 * 1024.0 * 1024.0;
    return std::llround(static_cast<double>(platform::physicalMemoryBytes(root).value_or(0)) / gigabyte);
}

QString BugReporter::architecture() { return QString::fromStdString(platform::buildArchitecture()); }

QString BugReporter::hardwareSummary(const std::filesystem::path& root) {
    const QString dot = QStringLiteral(" · ");
    return hardwareModel(root) + dot + chip(root) + dot + QString::number(memoryGB(root)) +
           QStringLiteral(" GB");
}

QString BugReporter::sharedSecret(const InformationDictionary& build) {
    return build.string(QStringLiteral("OndelReportSecret")).value_or(QString());
}

bool BugReporter::isConfigured(const InformationDictionary& build) { return !sharedSecret(build).isEmpty(); }

} // namespace OndelAppSupport
