#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace TarnwickKit::views {

/// In which language the window and the shared pictures are. Stored in the user's settings.
class LanguageSetting : public QObject {
    Q_OBJECT
    QML_ELEMENT

    /// The desktop's language, and then every language by the name that its speakers read.
    Q_PROPERTY(QList<QString> names READ names CONSTANT)
    /// Index into `names`. The texts follow when the program is started the next time.
    Q_PROPERTY(int chosen READ chosen WRITE choose NOTIFY changed)
    /// The choice is another than the one at the program's start.
    Q_PROPERTY(bool isPending READ isPending NOTIFY changed)
    /// Shared pictures are in English whatever the window's language.
    Q_PROPERTY(bool englishCards READ englishCards WRITE setEnglishCards NOTIFY changed)

public:
    explicit LanguageSetting(QObject* parent = nullptr);

    static bool wantsEnglishCards();

    static QStringList names();
    static int chosen();
    void choose(int index);
    bool isPending() const;
    static bool englishCards() { return wantsEnglishCards(); }
    void setEnglishCards(bool english);
    Q_SIGNAL void changed();

private:
    QString m_atStart;
};

} // namespace TarnwickKit::views
