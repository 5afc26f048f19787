#include "OndelAppSupport/updates/HttpsGet.h"

namespace OndelAppSupport::updates {

namespace {

constexpr int mostRedirects = 5;
constexpr int ok = 200;

} // namespace

void httpsGet(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
              const ReceiveBytes& receive, const std::stop_token& stop) {
    https::Head answer;
    https::Receiver receiver;
    receiver.head = [&](const https::Head& head) {
        answer = head;
        return head.status == ok; // the body of an error is not needed
    };
    receiver.body = [&](QByteArrayView bytes) {
        receive(answer, bytes);
        return true;
    };
    try {
        https::exchange({.url = url, .redirects = mostRedirects}, connection, receiver, stop);
    } catch (const https::TransportError&) {
        throw UpdateError(failure);
    }
    if (answer.status != ok)
        throw UpdateError(failure);
}

SmallResource httpsGetSmall(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
                            qint64 limit, const std::stop_token& stop) {
    https::Connection limited = connection;
    limited.limit = 2 * connection.patience;
    SmallResource resource;
    httpsGet(
        url, limited, failure,
        [&](const https::Head& head, QByteArrayView bytes) {
            resource.contentType = head.contentType;
            resource.body += bytes;
            if (resource.body.size() > limit)
                throw UpdateError(failure);
        },
        stop);
    return resource;
}

} // namespace OndelAppSupport::updates
