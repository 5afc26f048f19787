#include "TarnwickKit/views/style/TarnwickFonts.h"
#include "support/Application.h"

#include <QGuiApplication>

std::unique_ptr<QCoreApplication> test::makeApplication(int& argc, char** argv) {
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    TarnwickKit::views::TarnwickFonts::registerFrom();
    return application;
}
