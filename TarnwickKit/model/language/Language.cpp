#include "TarnwickKit/model/language/Language.h"

#include "TarnwickKit/model/language/CatalogueFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QResource>
#include <QTranslator>

#include <algorithm>

static void loadCatalogues() { Q_INIT_RESOURCE(tarnwick_translations); }

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

namespace {

thread_local int englishDepth = 0;

bool rightToLeft = false;

/// A catalogue that is silent while EnglishTexts exist, and where it has an empty text.
class Catalogue final : public QTranslator {
public:
    using QTranslator::QTranslator;

    /// From a file that may be damaged. What is in it is read now: others may write to it later.
    bool read(const QString& path) {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            return false;
        m_bytes = wholeCatalogue(file.readAll());
        return load(reinterpret_cast<const uchar*>(m_bytes.constData()), static_cast<int>(m_bytes.size()));
    }

    QString translate(const char* context, const char* source, const char* disambiguation,
                      int count) const override {
        const QString text =
            englishDepth > 0 ? QString() : QTranslator::translate(context, source, disambiguation, count);
        return text.isEmpty() ? QString() : text; // an empty one that is not null would be shown
    }

private:
    QByteArray m_bytes;
};

/// The locale's name without its character set and variant: "de_AT" of "de_AT.UTF-8@euro".
QString nameOf(const QString& locale) { return locale.section(u'.', 0, 0).section(u'@', 0, 0); }

/// The locale without a language. It stands for English, in `LANGUAGE` as well.
bool isPlain(const QString& name) { return name == u"C" || name == u"POSIX"; }

bool has(const QString& code) {
    return std::ranges::any_of(Language::all(), [&](const auto& choice) { return choice.code == code; });
}

/// The catalogue for a locale's name, empty if there is none.
QString catalogueFor(const QString& name) {
    if (has(name))
        return name;
    if (isPlain(name))
        return u"en"_s;
    const QStringList parts = name.split(u'_');
    const QString language = parts.first() == u"iw" ? u"he"_s : parts.first(); // the code of old systems
    if (language == u"zh") {
        const bool isTraditional = parts.contains(u"TW") || parts.contains(u"HK") || parts.contains(u"MO") ||
                                   parts.contains(u"Hant");
        return isTraditional && !parts.contains(u"Hans") ? QString() : u"zh_CN"_s;
    }
    if (language == u"pt")
        return u"pt_BR"_s;
    return has(language) ? language : QString();
}

/// Adds a catalogue to the application, and returns whether it could be read.
bool add(Catalogue* catalogue, bool isLoaded) {
    if (isLoaded && QCoreApplication::installTranslator(catalogue))
        return true;
    delete catalogue;
    return false;
}

/// The catalogue inside of this program. It stays where it is: nothing is copied.
bool addOwn(const QString& code) {
    const QResource file(u":/tarnwick/translations/tarnwick_%1.qm"_s.arg(code));
    auto* catalogue = new Catalogue(QCoreApplication::instance());
    return add(catalogue, file.isValid() && catalogue->load(file.data(), static_cast<int>(file.size())));
}

/// Those of the file dialog's and the editing menus' texts.
void addOfToolkit(const QString& code) {
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    auto* catalogue = new Catalogue(QCoreApplication::instance());
    add(catalogue, catalogue->read(u"%1/qtbase_%2.qm"_s.arg(folder, code)));
}

} // namespace

const QList<Language::Choice>& Language::all() {
    static const QList<Choice> choices{
        {u"ar"_s, u"العربية"_s},
        {u"de"_s, u"Deutsch"_s},
        {u"en"_s, u"English"_s},
        {u"es"_s, u"Español"_s},
        {u"fr"_s, u"Français"_s},
        {u"he"_s, u"עברית"_s},
        {u"it"_s, u"Italiano"_s},
        {u"ja"_s, u"日本語"_s},
        {u"ko"_s, u"한국어"_s},
        {u"pl"_s, u"Polski"_s},
        {u"pt_BR"_s, u"Português (BR)"_s},
        {u"ru"_s, u"Русский"_s},
        {u"tr"_s, u"Türkçe"_s},
        {u"uk"_s, u"Українська"_s},
        {u"zh_CN"_s, u"简体中文"_s},
    };
    return choices;
}

QString Language::environmentValue(const char* name) { return qEnvironmentVariable(name); }

QStringList Language::wanted(const Environment& environment) {
    QString locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (locale.isEmpty())
            locale = nameOf(environment(name));
    if (locale.isEmpty() || isPlain(locale))
        return {};
    QStringList wanted;
    for (const QString& language : environment("LANGUAGE").split(u':', Qt::SkipEmptyParts))
        wanted.append(nameOf(language));
    wanted.append(locale);
    return wanted;
}

QString Language::best(const QStringList& wanted) {
    for (const QString& locale : wanted)
        if (QString code = catalogueFor(nameOf(locale).replace(u'-', u'_')); !code.isEmpty())
            return code;
    return u"en"_s;
}

QString Language::install(const QString& code) {
    loadCatalogues();
    QString chosen = has(code) ? code : best(wanted());
    const QString file = qEnvironmentVariable("TARNWICK_CATALOGUE");
    auto* given = new Catalogue(QCoreApplication::instance());
    if (add(given, !file.isEmpty() && given->read(file))) {
        if (const QString language = given->language(); QLocale(language).language() != QLocale::C)
            chosen = language;
    } else if (chosen != u"en" && !addOwn(chosen))
        chosen = u"en"_s;
    if (chosen != u"en")
        addOfToolkit(chosen);
    rightToLeft = QLocale(chosen).textDirection() == Qt::RightToLeft;
    return chosen;
}

bool Language::isRightToLeft() { return rightToLeft && englishDepth == 0; }

EnglishTexts::EnglishTexts(bool wanted)
    : m_wanted(wanted) {
    englishDepth += m_wanted ? 1 : 0;
}

EnglishTexts::~EnglishTexts() { englishDepth -= m_wanted ? 1 : 0; }

} // namespace TarnwickKit::model
