#include "TarnwickKit/views/window/LanguageSetting.h"

#include "TarnwickKit/model/language/ChosenLanguage.h"
#include "TarnwickKit/model/language/Language.h"

#include <QSettings>

namespace TarnwickKit::views {

using model::ChosenLanguage;
using model::Language;

namespace {

const auto englishCardsKey = QStringLiteral("TarnwickCardsInEnglish");

/// What the process started with: a later object of the same process compares with it as well.
const QString& codeAtStart() {
    static const QString code = ChosenLanguage::code();
    return code;
}

} // namespace

LanguageSetting::LanguageSetting(QObject* parent)
    : QObject(parent)
    , m_atStart(codeAtStart()) {}

bool LanguageSetting::wantsEnglishCards() { return QSettings().value(englishCardsKey).toBool(); }

QStringList LanguageSetting::names() {
    QStringList names{tr("Like the desktop")};
    for (const Language::Choice& choice : Language::all())
        names.append(choice.name);
    return names;
}

int LanguageSetting::chosen() {
    const QList<Language::Choice>& all = Language::all();
    const QString code = ChosenLanguage::code();
    for (qsizetype index = 0; index < all.size(); ++index)
        if (all[index].code == code)
            return static_cast<int>(index) + 1;
    return 0; // a code that was removed, or written by somebody else, as well
}

bool LanguageSetting::isPending() const { return m_atStart != ChosenLanguage::code(); }

void LanguageSetting::choose(int index) {
    if (index == chosen() || index < 0 || index > Language::all().size())
        return;
    ChosenLanguage::setCode(index == 0 ? QString() : Language::all()[index - 1].code);
    Q_EMIT changed();
}

void LanguageSetting::setEnglishCards(bool english) {
    QSettings().setValue(englishCardsKey, english);
    Q_EMIT changed();
}

} // namespace TarnwickKit::views
