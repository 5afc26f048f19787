#include "Tarnwick/Product.h"
#include "TarnwickKit/model/language/ChosenLanguage.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickSearch/SearchProvider.h"

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // Those of the window, whose settings it reads.
    QCoreApplication::setOrganizationName(QString::fromLatin1(product::organization));
    QCoreApplication::setApplicationName(QString::fromLatin1(product::name));
    TarnwickKit::model::Language::install(TarnwickKit::model::ChosenLanguage::code());
    TarnwickSearch::SearchProvider provider(QDBusConnection::sessionBus());
    return provider.begin() ? QCoreApplication::exec() : EXIT_FAILURE;
}
