#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace OndelDesktop {

/// The desktop's portal asked to keep the machine and the session awake, for as long as the object lives.
/// Threads: the main one, with an event loop; no call waits for an answer.
class AwakePortal final : public QObject {
    Q_OBJECT

public:
    /// `refused` is called at most once: when the portal is not there, or answers that it does not do it. A
    /// portal takes each request and asks the desktop behind it only then. `why` is shown to people.
    AwakePortal(const QString& why, std::function<void()> refused);
    ~AwakePortal() override;
    Q_DISABLE_COPY_MOVE(AwakePortal)

private:
    void ask(const QString& why);
    void giveUp();
    Q_SLOT void answered(uint response, const QVariantMap& results);

    QString m_token;
    std::function<void()> m_refused;
};

} // namespace OndelDesktop
