#include "TarnwickHost/Output.h"

#include "TarnwickHost/HostText.h"
#include "TarnwickKit/model/format/DisplayText.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace TarnwickHost {

namespace {

[[noreturn]] void throwOutputError() {
    throw std::system_error(errno, std::generic_category(),
                            HostFiles::tr("The result could not be written").toStdString());
}

} // namespace

void occupyStandardDescriptors() {
    // Opened for the opposite direction, so that transfers fail with EBADF as on a closed descriptor.
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(descriptor, F_GETFD) < 0)
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

void print(std::string_view utf8) {
    while (!utf8.empty()) {
        const ssize_t written = write(STDOUT_FILENO, utf8.data(), utf8.size());
        if (written < 0 && errno != EINTR)
            throwOutputError();
        if (written > 0)
            utf8.remove_prefix(static_cast<std::size_t>(written));
    }
}

void print(const QJsonDocument& json) {
    print(TarnwickKit::model::harmlessJson(json.toJson(QJsonDocument::Compact)).toStdString() + '\n');
}

void requireStandardOutput() {
    const int flags = fcntl(STDOUT_FILENO, F_GETFL);
    if (flags >= 0 && (flags & O_ACCMODE) != O_RDONLY)
        return;
    errno = EBADF;
    throwOutputError();
}

void complain(std::string_view line) {
    std::string text(line);
    text += '\n';
    [[maybe_unused]] const ssize_t ignored = write(STDERR_FILENO, text.data(), text.size());
}

void complain(const QString& line) { complain(std::string_view(line.toStdString())); }

} // namespace TarnwickHost
