#include "TarnwickKit/model/language/Language.h"
#include "TarnwickSearch/SearchProvider.h"

#include <QCoreApplication>

#include <cstdlib>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    TarnwickKit::model::Language::install();
    TarnwickSearch::SearchProvider provider(QDBusConnection::sessionBus());
    return provider.begin() ? QCoreApplication::exec() : EXIT_FAILURE;
}
