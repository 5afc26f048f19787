#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

class QDBusMessage;

namespace OndelDesktop {

/// One message asked for at the desktop's portal. Owner: itself, until there is an answer.
class EmailPortal final : public QObject {
    Q_OBJECT

public:
    /// `unanswered` is called when the portal is not there or could not do it, not when the user thought
    /// better of it.
    static void compose(const QString& file, const QString& subject, std::function<void()> unanswered);

private:
    explicit EmailPortal(std::function<void()> unanswered);

    void listen(const QString& token);
    void ask(const QDBusMessage& question);
    void giveUp();
    Q_SLOT void answered(uint response, const QVariantMap& results);

    std::function<void()> m_unanswered;
};

} // namespace OndelDesktop
