// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Email.html

#include "OndelDesktop/linux/EmailPortal.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QList>

#include <fcntl.h>

#include <chrono>

namespace OndelDesktop {

using OndelCore::platform::FileDescriptor;
using OndelCore::platform::newUuid;

namespace {

const auto portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

/// A portal that must first be started may take its time, one that hangs is given up.
constexpr std::chrono::milliseconds emailPatience = std::chrono::seconds(5);

/// Where the answer to a request with this token will come from.
QString requestPath(const QString& token) {
    QString sender = QDBusConnection::sessionBus().baseService().mid(1);
    return portalPath + QStringLiteral("/request/") + sender.replace(u'.', u'_') + u'/' + token;
}

} // namespace

EmailPortal::EmailPortal(std::function<void()> unanswered)
    : m_unanswered(std::move(unanswered)) {}

void EmailPortal::compose(const QString& file, const QString& subject, std::function<void()> unanswered) {
    using Descriptors = QList<QDBusUnixFileDescriptor>;
    auto* request = new EmailPortal(std::move(unanswered));
    const FileDescriptor attachment(open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC));
    if (!attachment || !QDBusConnection::sessionBus().isConnected()) {
        request->giveUp();
        return;
    }
    qDBusRegisterMetaType<Descriptors>();
    const QString token = u'o' + QString::fromStdString(newUuid()).remove(u'-');
    request->listen(token);
    auto question = QDBusMessage::createMethodCall(portalService, portalPath,
                                                   QStringLiteral("org.freedesktop.portal.Email"),
                                                   QStringLiteral("ComposeEmail"));
    question << QString() // no parent window
             << QVariantMap{{QStringLiteral("handle_token"), token},
                            {QStringLiteral("subject"), subject},
                            {QStringLiteral("attachment_fds"),
                             QVariant::fromValue(Descriptors{QDBusUnixFileDescriptor(attachment.get())})}};
    request->ask(question);
}

void EmailPortal::listen(const QString& token) {
    const bool listening = QDBusConnection::sessionBus().connect(
        portalService, requestPath(token), QStringLiteral("org.freedesktop.portal.Request"),
        QStringLiteral("Response"), this, SLOT(answered(uint, QVariantMap)));
    Q_ASSERT(listening);
    Q_UNUSED(listening)
}

void EmailPortal::ask(const QDBusMessage& question) {
    auto* taken = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(question, static_cast<int>(emailPatience.count())), this);
    connect(taken, &QDBusPendingCallWatcher::finished, this, [this, taken] {
        if (taken->isError())
            giveUp();
    });
}

void EmailPortal::giveUp() {
    m_unanswered();
    deleteLater();
}

void EmailPortal::answered(uint response, const QVariantMap& results) {
    Q_UNUSED(results)
    constexpr uint neitherDoneNorCancelled = 2;
    if (response >= neitherDoneNorCancelled)
        m_unanswered();
    deleteLater();
}

} // namespace OndelDesktop
