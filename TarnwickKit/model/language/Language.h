#pragma once

#include "OndelCore/Export.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace TarnwickKit::model {

/// The language of all texts for people: English, which is in the code, or one of the catalogues in
/// resources/translations. Files, JSON and logs are in English whatever the language. Numbers and dates
/// follow the locale and not the language.
///
/// Threads: choose and install before other threads ask for texts.
class ONDEL_PUBLIC Language {
public:
    /// A language, by the code of its catalogue ("de", "pt_BR") and by the name that its speakers read.
    struct Choice {
        QString code;
        QString name;
    };
    /// English and every language with a catalogue, ordered by code.
    static const QList<Choice>& all();

    /// A variable of the process's environment, empty where it is not set.
    using Environment = std::function<QString(const char* name)>;
    static QString environmentValue(const char* name);
    /// The user's languages by preference, as gettext has them: `LANGUAGE`, which counts only if the locale
    /// of `LC_ALL`, `LC_MESSAGES` or `LANG` is not C; then this locale.
    static QStringList wanted(const Environment& environment = environmentValue);
    /// The code of the first language in `wanted` that is there: "de" for "de_AT.UTF-8@euro", "pt_BR" for
    /// "pt_PT". English if none is. Chinese in traditional characters is not in simplified ones.
    static QString best(const QStringList& wanted);

    /// Has all later texts in the language `code`, or the best wanted one if no catalogue has this code.
    /// Qt's own texts follow if Qt's catalogue of the language is installed, and a window's direction if
    /// there are windows. `TARNWICK_CATALOGUE` names a file to use instead, for translators; one that is no
    /// catalogue or a damaged one is not used.
    /// Needs: the application object. Call it once. Returns: the code that is in use.
    static QString install(const QString& code = {});
    /// Whether texts are written from right to left. English ones are not.
    static bool isRightToLeft();
};

/// Has this thread's texts in English as long as it exists, for example for a picture that is sent abroad.
class ONDEL_PUBLIC EnglishTexts {
public:
    explicit EnglishTexts(bool wanted = true);
    ~EnglishTexts();
    EnglishTexts(const EnglishTexts&) = delete;
    EnglishTexts& operator=(const EnglishTexts&) = delete;

private:
    bool m_wanted;
};

} // namespace TarnwickKit::model
