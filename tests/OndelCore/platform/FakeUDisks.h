#pragma once

#include "OndelCore/platform/linux/UDisksBus.h"
#include "support/TemporaryFolder.h"

#include <QDBusVirtualObject>
#include <QProcess>
#include <QThread>

#include <memory>
#include <string>

namespace test {

/// A message bus of its own with nothing on it that nobody puts there.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    /// Empty when no bus could be started here.
    const std::string& address() const { return m_address; }

private:
    TemporaryFolder m_folder;
    QProcess m_daemon;
    std::string m_address;
};

/// A row of the ATA attribute table as UDisks2 sends it.
struct UDisksAtaRow {
    uchar number = 0;
    int unit = 0;
    qlonglong pretty = 0;
};

/// What the service is to answer.
struct UDisksScript {
    OndelCore::platform::UDisksObjects objects{};
    QVariant attributes{};       ///< of SmartGetAttributes; invalid: an error
    QVariantMap afterUpdate{};   ///< properties of the S.M.A.R.T. interface behind SmartUpdate
    bool refusesUpdate = false;  ///< "it would wake the drive"
    bool isMute = false;         ///< never answers anything
    QVariant insteadOfObjects{}; ///< valid: what GetManagedObjects answers against its contract
};

QVariant ataTable(const QList<UDisksAtaRow>& rows);

/// The objects of one disk with a drive that has one S.M.A.R.T. interface.
OndelCore::platform::UDisksObjects oneDrive(qulonglong deviceNumber, const QString& interface,
                                            const QVariantMap& properties);

/// Speaks as org.freedesktop.UDisks2 on a bus, in a thread of its own. Fails: throws std::runtime_error when
/// the bus refuses it.
class FakeUDisks {
public:
    FakeUDisks(const std::string& address, UDisksScript script);
    ~FakeUDisks();

    /// How often a S.M.A.R.T. method came without the two options that spare people and drives.
    int carelessCalls() const;

private:
    class Service;
    QThread m_thread;
    QString m_name;
    std::unique_ptr<Service> m_service;
};

} // namespace test
