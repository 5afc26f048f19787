#include "TarnwickKit/model/language/ChosenLanguage.h"

#include <QSettings>

namespace TarnwickKit::model {

namespace {

const auto chosenKey = QStringLiteral("TarnwickLanguage");

} // namespace

QString ChosenLanguage::code() { return QSettings().value(chosenKey).toString(); }

void ChosenLanguage::setCode(const QString& code) {
    QSettings settings;
    if (code.isEmpty())
        settings.remove(chosenKey);
    else
        settings.setValue(chosenKey, code);
}

} // namespace TarnwickKit::model
