#pragma once

#include "TarnwickSearch/RunSearch.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <chrono>

namespace TarnwickSearch {

/// The stored runs for the search of GNOME Shell, which starts this process by the bus for a word that is
/// typed. The process ends when nothing was asked for a while. A result opens the window, which is a process
/// of its own. Threads: the main one.
class SearchProvider final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

public:
    explicit SearchProvider(const QDBusConnection& bus);

    /// Of longer lists of ids the rest is dropped: nobody has so many runs.
    static constexpr qsizetype mostIds = 100;
    static constexpr std::chrono::seconds idleTime{10};

    /// Takes the name that the shell asks for. Fails: false, if another process has it or there is no bus.
    bool begin();

    Q_SCRIPTABLE Q_SLOT QStringList GetInitialResultSet(const QStringList& terms);
    Q_SCRIPTABLE Q_SLOT QStringList GetSubsearchResultSet(const QStringList& previous,
                                                          const QStringList& terms);
    Q_SCRIPTABLE Q_SLOT QList<QVariantMap> GetResultMetas(const QStringList& ids);
    Q_SCRIPTABLE Q_SLOT void ActivateResult(const QString& id, const QStringList& terms, uint timestamp);
    Q_SCRIPTABLE Q_SLOT void LaunchSearch(const QStringList& terms, uint timestamp);

private:
    void end();
    void callWindow(const QString& method, const QVariantList& arguments, uint timestamp);

    QDBusConnection m_bus;
    RunSearch m_search;
    QTimer m_idle;
};

} // namespace TarnwickSearch
