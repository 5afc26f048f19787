#include "TarnwickKit/views/window/LanguageSetting.h"

#include "TarnwickKit/model/language/Language.h"

namespace TarnwickKit::views {

using model::Language;

namespace {

const auto languageKey = QStringLiteral("TarnwickLanguage");
const auto englishCardsKey = QStringLiteral("TarnwickCardsInEnglish");

/// What the process started with: a later object of the same process compares with it as well.
const QString& codeAtStart() {
    static const QString code = LanguageSetting::code();
    return code;
}

} // namespace

LanguageSetting::LanguageSetting(QObject* parent)
    : QObject(parent)
    , m_atStart(codeAtStart()) {}

QString LanguageSetting::code() { return QSettings().value(languageKey).toString(); }

bool LanguageSetting::wantsEnglishCards() { return QSettings().value(englishCardsKey).toBool(); }

QStringList LanguageSetting::names() {
    QStringList names{tr("Like the desktop")};
    for (const Language::Choice& choice : Language::all())
        names.append(choice.name);
    return names;
}

int LanguageSetting::chosen() {
    const QList<Language::Choice>& all = Language::all();
    for (qsizetype index = 0; index < all.size(); ++index)
        if (all[index].code == code())
            return static_cast<int>(index) + 1;
    return 0; // a code that was removed, or written by somebody else, as well
}

void LanguageSetting::choose(int index) {
    if (index == chosen() || index < 0 || index > Language::all().size())
        return;
    QSettings settings;
    if (index == 0)
        settings.remove(languageKey);
    else
        settings.setValue(languageKey, Language::all()[index - 1].code);
    Q_EMIT changed();
}

void LanguageSetting::setEnglishCards(bool english) {
    QSettings().setValue(englishCardsKey, english);
    Q_EMIT changed();
}

} // namespace TarnwickKit::views
