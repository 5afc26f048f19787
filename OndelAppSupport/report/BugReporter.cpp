// The report itself; what it tells of the system is another file's matter.

#include "OndelAppSupport/report/BugReporter.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/report/ReportSubmission.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace OndelAppSupport {

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

} // namespace OndelAppSupport
