#include "TarnwickSearch/SearchProvider.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>

#include <algorithm>

namespace TarnwickSearch {

namespace {

const QString name = QStringLiteral("tools.ondel.tarnwick.SearchProvider");
const QString path = QStringLiteral("/tools/ondel/tarnwick/SearchProvider");
const QString application = QStringLiteral("tools.ondel.tarnwick");
const QString applicationPath = QStringLiteral("/tools/ondel/tarnwick");

/// For requests that were sent before the name was given up.
constexpr std::chrono::milliseconds lastRequests(200);

} // namespace

SearchProvider::SearchProvider(const QDBusConnection& bus)
    : m_bus(bus) {
    qDBusRegisterMetaType<QList<QVariantMap>>();
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    connect(&m_idle, &QTimer::timeout, this, &SearchProvider::end);
}

bool SearchProvider::begin() {
    m_idle.start();
    // Before the name is requested, so that its owner always has the object.
    return m_bus.registerObject(path, this, QDBusConnection::ExportScriptableSlots) &&
           m_bus.registerService(name);
}

/// The bus starts another process for later requests.
void SearchProvider::end() {
    m_bus.unregisterService(name);
    QTimer::singleShot(lastRequests, this, &QCoreApplication::quit);
}

QStringList SearchProvider::GetInitialResultSet(const QStringList& terms) {
    m_idle.start();
    return m_search.idsOf(terms);
}

QStringList SearchProvider::GetSubsearchResultSet(const QStringList& previous, const QStringList& terms) {
    QStringList ids = GetInitialResultSet(terms);
    ids.removeIf([&](const QString& id) { return !previous.contains(id); });
    return ids;
}

QList<QVariantMap> SearchProvider::GetResultMetas(const QStringList& ids) {
    m_idle.start();
    QList<QVariantMap> metas;
    for (const QString& id : ids.first(std::min(ids.size(), mostIds)))
        if (const auto lines = m_search.linesOf(id))
            metas.append({{QStringLiteral("id"), id},
                          {QStringLiteral("name"), lines->title},
                          {QStringLiteral("description"), lines->description},
                          {QStringLiteral("gicon"), application}});
    return metas;
}

void SearchProvider::ActivateResult(const QString& id, const QStringList&, uint timestamp) {
    callWindow(QStringLiteral("ActivateAction"), {QStringLiteral("show-run"), QVariantList{id}}, timestamp);
}

void SearchProvider::LaunchSearch(const QStringList&, uint timestamp) {
    callWindow(QStringLiteral("Activate"), {}, timestamp);
}

/// The time of the key that was pressed lets the window come to the front on X11.
void SearchProvider::callWindow(const QString& method, const QVariantList& arguments, uint timestamp) {
    m_idle.start();
    auto message = QDBusMessage::createMethodCall(application, applicationPath,
                                                  QStringLiteral("org.freedesktop.Application"), method);
    const QString token = QStringLiteral("tarnwick-search_TIME%1").arg(timestamp);
    message.setArguments(arguments +
                         QVariantList{QVariantMap{{QStringLiteral("desktop-startup-id"), token}}});
    m_bus.send(message);
}

} // namespace TarnwickSearch
