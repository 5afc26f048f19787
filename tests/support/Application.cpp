#include "support/Application.h"

std::unique_ptr<QCoreApplication> test::makeApplication(int& argc, char** argv) {
    return std::make_unique<QCoreApplication>(argc, argv);
}
