#pragma once

#include <QCoreApplication>

#include <memory>

namespace test {

/// The application object of the test program. A program whose tests draw defines its own.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv);

} // namespace test
