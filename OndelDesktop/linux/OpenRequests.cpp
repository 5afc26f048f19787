#include "OndelDesktop/OpenRequests.h"

#include "OndelDesktop/linux/ApplicationBusAdaptor.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <utility>

namespace OndelDesktop {

namespace {

const QString interface = QStringLiteral("org.freedesktop.Application");

const QString activationToken = QStringLiteral("activation-token");
const QString startupId = QStringLiteral("desktop-startup-id");

/// For calls of the bus itself, which answers at once or never.
constexpr std::chrono::milliseconds busPatience = std::chrono::seconds(1);

QDBusPendingCall askBus(const QDBusConnection& bus, const QString& method, const QVariantList& arguments) {
    const QString service = QStringLiteral("org.freedesktop.DBus");
    auto message =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/DBus"), service, method);
    message.setArguments(arguments);
    return bus.asyncCall(message, static_cast<int>(busPatience.count()));
}

/// Waits in an event loop of its own, so that other events are handled.
QDBusMessage answerTo(const QDBusPendingCall& call) {
    const QDBusPendingCallWatcher watcher(call);
    if (!watcher.isFinished()) {
        QEventLoop loop;
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return watcher.reply();
}

/// Between two attempts, after the first was refused.
void pause() {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::milliseconds(20), &loop, &QEventLoop::quit);
    loop.exec();
}

QVariantMap platformData(const OpenRequest& request) {
    if (request.activationToken.empty())
        return {};
    const QString token = QString::fromStdString(request.activationToken);
    return {{activationToken, token}, {startupId, token}};
}

std::string usable(std::string token) {
    return token.size() <= OpenRequests::longestToken ? std::move(token) : std::string();
}

/// Empty for a longer text, which is not converted: a message may hold 128 MiB.
std::string within(std::size_t longest, const QString& text) {
    return static_cast<std::size_t>(text.size()) <= longest ? text.toStdString() : std::string();
}

std::vector<std::string> urlsOf(const QStringList& uris) {
    constexpr qsizetype most = OpenRequests::mostUrls;
    const QStringList taken = uris.size() > most ? uris.first(most / 2) + uris.last(most - most / 2) : uris;
    std::vector<std::string> urls;
    for (const QString& uri : taken)
        urls.push_back(within(OpenRequests::longestUrl, uri));
    return urls;
}

} // namespace

ApplicationBusAdaptor::ApplicationBusAdaptor(const QDBusConnection& bus, const QString& name)
    : m_bus(bus)
    , m_name(name)
    , m_path(u'/' + QString(name).replace(u'.', u'/')) {
    // Before the name is requested, so that its owner always has the object.
    m_bus.registerObject(m_path, this, QDBusConnection::ExportScriptableSlots);
    askForName();
}

void ApplicationBusAdaptor::askForName() {
    constexpr uint doNotQueue = 4;
    m_nameAnswer = askBus(m_bus, QStringLiteral("RequestName"), {m_name, doNotQueue});
}

bool ApplicationBusAdaptor::ownsName() {
    constexpr uint exists = 3;
    const QDBusMessage answer = m_nameAnswer ? answerTo(*m_nameAnswer) : QDBusMessage();
    return answer.type() != QDBusMessage::ReplyMessage || answer.arguments().value(0).toUInt() != exists;
}

/// Splits a list that is too long for one message. Only the first message carries the token, which is single
/// use.
std::vector<QDBusMessage> ApplicationBusAdaptor::messagesFor(const OpenRequest& request) const {
    const auto call = [this](const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(m_name, m_path, interface, method);
        message.setArguments(arguments);
        message.setAutoStartService(false);
        return message;
    };
    if (!request.action.empty()) {
        QVariantList parameters;
        for (const std::string& url : request.urls)
            parameters.append(QString::fromStdString(url));
        return {call(QStringLiteral("ActivateAction"),
                     {QString::fromStdString(request.action), parameters, platformData(request)})};
    }
    if (request.urls.empty())
        return {call(QStringLiteral("Activate"), {platformData(request)})};
    std::vector<QDBusMessage> messages;
    QStringList urls;
    for (const std::string& url : request.urls) {
        urls.append(QString::fromStdString(url));
        const bool isLast = &url == &request.urls.back();
        if (!isLast && static_cast<std::size_t>(urls.size()) < OpenRequests::mostUrls)
            continue;
        messages.push_back(
            call(QStringLiteral("Open"),
                 {std::exchange(urls, {}), messages.empty() ? platformData(request) : QVariantMap()}));
    }
    return messages;
}

/// All messages are sent before the first answer, so that a stopped process finds all of them when it
/// continues.
QDBusError ApplicationBusAdaptor::send(const OpenRequest& request, std::chrono::milliseconds patience) {
    std::vector<QDBusPendingCall> calls;
    for (const QDBusMessage& message : messagesFor(request))
        calls.push_back(m_bus.asyncCall(message, static_cast<int>(patience.count())));
    QDBusError error;
    for (const QDBusPendingCall& call : calls)
        if (const QDBusError refusal(answerTo(call)); refusal.isValid())
            error = refusal;
    return error;
}

std::optional<std::uint32_t> ApplicationBusAdaptor::owner() {
    const QDBusMessage answer =
        answerTo(askBus(m_bus, QStringLiteral("GetConnectionUnixProcessID"), {m_name}));
    return answer.type() == QDBusMessage::ReplyMessage ? std::optional(answer.arguments().value(0).toUInt())
                                                       : std::nullopt;
}

void ApplicationBusAdaptor::deliverTo(OpenRequests::Take take) {
    m_take = std::move(take);
    for (const OpenRequest& request : std::exchange(m_early, {}))
        m_take(request);
}

void ApplicationBusAdaptor::close() {
    m_isClosed = true;
    m_bus.unregisterObject(m_path);
    askBus(m_bus, QStringLiteral("ReleaseName"), {m_name});
}

void ApplicationBusAdaptor::Activate(const QVariantMap& platformData) { accept({}, platformData); }

void ApplicationBusAdaptor::Open(const QStringList& uris, const QVariantMap& platformData) {
    accept({.urls = urlsOf(uris), .action = {}, .activationToken = {}}, platformData);
}

void ApplicationBusAdaptor::ActivateAction(const QString& action, const QVariantList& parameters,
                                           const QVariantMap& platformData) {
    QStringList texts;
    for (const QVariant& parameter : parameters)
        texts.append(parameter.toString()); // "" for anything else
    accept({.urls = urlsOf(texts), .action = action.toStdString(), .activationToken = {}}, platformData);
}

void ApplicationBusAdaptor::accept(OpenRequest request, const QVariantMap& platformData) {
    for (const QString& key : {activationToken, startupId})
        if (request.activationToken.empty())
            request.activationToken =
                usable(within(OpenRequests::longestToken, platformData.value(key).toString()));
    if (m_isClosed)
        sendErrorReply(QDBusError::ServiceUnknown, QStringLiteral("The application is ending."));
    else if (!m_take)
        m_early.push_back(std::move(request));
    else if (!m_take(request))
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("There is no such action."));
}

OpenRequests::OpenRequests(const std::string& applicationId) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected())
        m_adaptor = std::make_unique<ApplicationBusAdaptor>(bus, QString::fromStdString(applicationId));
}

OpenRequests::~OpenRequests() = default;

std::string OpenRequests::activationTokenOfStart() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return usable((token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token).toStdString());
}

HandOver OpenRequests::handOver(const OpenRequest& request, std::chrono::milliseconds patience) {
    using Outcome = HandOver::Outcome;
    const QDeadlineTimer end(patience);
    // A process that is ending refuses. Then the name is free, unless a third process was faster.
    while (m_adaptor && !m_adaptor->ownsName()) {
        if (end.hasExpired())
            return {Outcome::noAnswer, m_adaptor->owner()};
        const QDBusError refusal = m_adaptor->send(request, std::chrono::milliseconds(end.remainingTime()));
        if (!refusal.isValid() || refusal.type() == QDBusError::InvalidArgs)
            return {Outcome::taken, {}};
        pause();
        m_adaptor->askForName();
    }
    return {Outcome::nobodyElse, {}};
}

void OpenRequests::deliverTo(Take take) {
    if (m_adaptor)
        m_adaptor->deliverTo(std::move(take));
}

void OpenRequests::close() {
    if (m_adaptor)
        m_adaptor->close();
}

} // namespace OndelDesktop
