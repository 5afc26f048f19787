#include "TarnwickKit/model/language/ChosenLanguage.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickSearch/SearchProvider.h"

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // Those of the window, whose settings it reads.
    QCoreApplication::setOrganizationName(QStringLiteral("Ondel"));
    QCoreApplication::setApplicationName(QStringLiteral("Ondel Tarnwick"));
    TarnwickKit::model::Language::install(TarnwickKit::model::ChosenLanguage::code());
    TarnwickSearch::SearchProvider provider(QDBusConnection::sessionBus());
    return provider.begin() ? QCoreApplication::exec() : EXIT_FAILURE;
}
