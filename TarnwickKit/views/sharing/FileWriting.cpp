#include "TarnwickKit/views/sharing/FileWriting.h"

#include "OndelCore/platform/storage/ReplaceFile.h"

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <cstddef>
#include <memory>
#include <utility>

namespace TarnwickKit::views {

namespace fs = std::filesystem;

void writeLater(QObject* context, const fs::path& target, const QByteArray& content,
                std::function<void(const std::error_code&)> done) {
    constexpr fs::perms ordinary = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                                   fs::perms::group_write | fs::perms::others_read | fs::perms::others_write;
    const auto promise = std::make_shared<QPromise<std::error_code>>();
    promise->start();
    promise->future().then(context, std::move(done));
    QThreadPool::globalInstance()->start([content, target, promise] {
        promise->addResult(OndelCore::platform::replaceFile(
            target, {content.data(), static_cast<std::size_t>(content.size())}, ordinary));
        promise->finish();
    });
}

} // namespace TarnwickKit::views
