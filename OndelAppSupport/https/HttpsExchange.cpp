#include "OndelAppSupport/https/HttpsExchange.h"

#include "OndelAppSupport/https/CurlLibrary.h"
#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/process/SystemProxies.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace OndelAppSupport::https {

namespace {

using Clock = std::chrono::steady_clock;
using Kind = TransportError::Kind;

constexpr std::array redirectStatuses{301, 302, 303, 307, 308};

template <auto Free>
struct Freed {
    void operator()(auto* object) const { (CurlLibrary::shared().*Free)(object); }
};
using Easy = std::unique_ptr<CURL, Freed<&CurlLibrary::easyCleanup>>;
using Multi = std::unique_ptr<CURLM, Freed<&CurlLibrary::multiCleanup>>;
using Lines = std::unique_ptr<curl_slist, Freed<&CurlLibrary::freeLines>>;

/// The trimmed value; absent when `line` is a different header.
std::optional<QByteArray> valueOf(const QByteArray& line, const QByteArray& lowerName) {
    const bool isIt = line.size() > lowerName.size() && line[lowerName.size()] == ':' &&
                      line.left(lowerName.size()).toLower() == lowerName;
    return isIt ? std::optional(line.mid(lowerName.size() + 1).trimmed()) : std::nullopt;
}

/// One request and its answer through one proxy.
class Transfer {
public:
    /// `headBytes`: received so far by the whole exchange.
    Transfer(const Request& request, const Connection& connection, const Receiver& receiver,
             const std::string& proxy, std::size_t& headBytes, Clock::time_point latest)
        : m_curl(CurlLibrary::shared())
        , m_request(request)
        , m_connection(connection)
        , m_receiver(receiver)
        , m_headBytes(headBytes)
        , m_latest(latest)
        , m_easy(m_curl.easyInit())
        , m_multi(m_curl.multiInit()) {
        if (!m_easy || !m_multi)
            throw std::bad_alloc();
        setAddress(proxy);
        setContent();
        setCallbacks();
    }

    /// The head of the answer. Fails: throws.
    const Head& run(const std::stop_token& stop) {
        m_curl.addHandle(m_multi.get(), m_easy.get());
        const std::stop_callback wake(stop, [this] { m_curl.wakeup(m_multi.get()); });
        int running = 1;
        while (running > 0 && !stop.stop_requested() && !isLate()) {
            m_curl.perform(m_multi.get(), &running);
            if (running > 0)
                m_curl.poll(m_multi.get(), nullptr, 0, longestWait(), nullptr);
        }
        int left = 0;
        const CURLMsg* end = m_curl.readInformation(m_multi.get(), &left);
        const CURLcode code = end ? end->data.result : CURLE_OPERATION_TIMEDOUT;
        m_curl.removeHandle(m_multi.get(), m_easy.get());
        if (stop.stop_requested())
            throw Stopped();
        if (m_thrown)
            std::rethrow_exception(m_thrown);
        if (code != CURLE_OK && !m_hasEnough)
            throw failure(code);
        return m_head;
    }

    bool hasAnswer() const { return m_hasFinalHead; }

private:
    template <typename Value>
    void set(CURLoption option, Value value) {
        if (const CURLcode code = m_curl.setOption(m_easy.get(), option, value); code != CURLE_OK)
            throw TransportError(Kind::failed, m_curl.strerror(code));
    }

    void setAddress(const std::string& proxy) {
        set(CURLOPT_URL, m_request.url.toEncoded(QUrl::RemoveFragment).constData());
        set(CURLOPT_PROXY, proxy.c_str()); // an empty string disables the library's own look-up
        set(CURLOPT_NOPROXY, "");
        set(CURLOPT_PROTOCOLS_STR, "https");
        set(CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
        set(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1}); // HTTP/2 gains nothing for one request
        set(CURLOPT_NOSIGNAL, 1L);
        set(CURLOPT_QUICK_EXIT, 1L); // does not wait for a name look-up
        set(CURLOPT_CONNECTTIMEOUT, 0L);
        if (m_connection.authorities) {
            curl_blob certificates{const_cast<char*>(m_connection.authorities->constData()),
                                   static_cast<std::size_t>(m_connection.authorities->size()),
                                   CURL_BLOB_COPY};
            set(CURLOPT_CAINFO_BLOB, &certificates);
        }
    }

    void setContent() {
        curl_slist* lines = nullptr;
        const auto add = [&](const char* line) {
            curl_slist* longer = m_curl.appendLine(lines, line);
            if (!longer)
                throw std::bad_alloc();
            lines = longer;
            static_cast<void>(m_lines.release());
            m_lines.reset(lines);
        };
        for (const QByteArray& header : m_request.headers)
            add(header.constData());
        add("Expect:");                   // sends the body without asking first
        add("Accept-Encoding: identity"); // rules out decompression bombs
        add("Accept-Language: *");        // does not disclose the user's language
        set(CURLOPT_HTTPHEADER, m_lines.get());
        set(CURLOPT_USERAGENT, m_connection.userAgent.constData());
        if (m_request.body) {
            set(CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t{m_request.body->size()});
            set(CURLOPT_POSTFIELDS, m_request.body->constData());
        }
    }

    void setCallbacks() {
        set(CURLOPT_ERRORBUFFER, m_errorText.data());
        const auto take = [](char* bytes, std::size_t size, std::size_t count, void* self) {
            return static_cast<Transfer*>(self)->takeBody({bytes, static_cast<qsizetype>(size * count)});
        };
        const auto takeLine = [](char* bytes, std::size_t size, std::size_t count, void* self) {
            return static_cast<Transfer*>(self)->takeHead({bytes, static_cast<qsizetype>(size * count)});
        };
        set(CURLOPT_WRITEFUNCTION, static_cast<curl_write_callback>(take));
        set(CURLOPT_WRITEDATA, this);
        set(CURLOPT_HEADERFUNCTION, static_cast<curl_write_callback>(takeLine));
        set(CURLOPT_HEADERDATA, this);
    }

    bool isLate() const {
        const auto now = Clock::now();
        const bool hasAnyTime = m_hasFinalHead && !m_connection.limit;
        return now > m_lastActivity + m_connection.patience || (!hasAnyTime && now > m_latest);
    }

    /// Units: milliseconds.
    int longestWait() const {
        const auto end = std::min(m_latest, m_lastActivity + m_connection.patience);
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(left, 1, 1000));
    }

    /// Exceptions must not pass through the library. A count other than the number of bytes ends the
    /// transfer.
    std::size_t taken(QByteArrayView bytes, const auto& take) {
        m_lastActivity = Clock::now();
        try {
            if (take())
                return static_cast<std::size_t>(bytes.size());
            m_hasEnough = true;
        } catch (...) {
            m_thrown = std::current_exception();
        }
        return bytes.empty() ? 1 : 0;
    }

    std::size_t takeBody(QByteArrayView bytes) {
        return taken(bytes, [&] { return m_receiver.body(bytes); });
    }

    std::size_t takeHead(QByteArrayView bytes) {
        return taken(bytes, [&] {
            m_headBytes += static_cast<std::size_t>(bytes.size());
            if (m_headBytes > longestHead)
                throw TransportError(Kind::tooLongHead, "The answer's head is too long");
            if (m_hasFinalHead) // trailers
                return true;
            const QByteArray line = bytes.toByteArray();
            if (line.startsWith("HTTP/"))
                m_head = {};
            else if (line.trimmed().isEmpty())
                return endHead();
            else
                keep(line);
            return true;
        });
    }

    void keep(const QByteArray& line) {
        if (const auto type = valueOf(line, "content-type"))
            m_head.contentType = *type;
        else if (const auto location = valueOf(line, "location"))
            m_head.location = *location;
        else if (const auto length = valueOf(line, "content-length")) {
            bool isNumber = false;
            const qint64 bytes = length->toLongLong(&isNumber);
            m_head.length = isNumber ? std::optional(bytes) : std::nullopt;
        }
    }

    /// Interim answers and the proxy's reply to CONNECT have a head as well. The library's status is always
    /// the server's.
    bool endHead() {
        constexpr long firstFinalStatus = 200;
        long status = 0;
        m_curl.information(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
        if (status < firstFinalStatus)
            return true;
        m_hasFinalHead = true;
        m_head.status = static_cast<int>(status);
        const bool isFollowed = m_request.redirects > 0 && m_head.location &&
                                std::ranges::find(redirectStatuses, m_head.status) != redirectStatuses.end();
        return !isFollowed && m_receiver.head(m_head);
    }

    TransportError failure(CURLcode code) const {
        const bool isHttp = code != CURLE_UNSUPPORTED_PROTOCOL && code != CURLE_WEIRD_SERVER_REPLY;
        if (code == CURLE_OPERATION_TIMEDOUT) // in the words of whoever else limits the time
            return {Kind::failed, OndelCore::platform::errorText(ETIMEDOUT).c_str()};
        long error = 0;
        m_curl.information(m_easy.get(), CURLINFO_OS_ERRNO, &error);
        if (code == CURLE_COULDNT_CONNECT && error != 0)
            return {Kind::failed, OndelCore::platform::errorText(static_cast<int>(error)).c_str()};
        const char* text = m_errorText[0] != '\0' ? m_errorText.data() : m_curl.strerror(code);
        return {isHttp ? Kind::failed : Kind::notHttp, text};
    }

    const CurlLibrary& m_curl;
    const Request& m_request;
    const Connection& m_connection;
    const Receiver& m_receiver;
    std::size_t& m_headBytes;
    const Clock::time_point m_latest;
    Clock::time_point m_lastActivity = Clock::now();
    Head m_head;
    bool m_hasFinalHead = false;
    bool m_hasEnough = false;
    std::exception_ptr m_thrown;
    std::array<char, CURL_ERROR_SIZE> m_errorText{};
    Lines m_lines;
    Easy m_easy;
    Multi m_multi;
};

/// Uses the first proxy that works. After an answer of the server no further proxy is tried.
Head transferThroughProxies(const Request& request, const Connection& connection, const Receiver& receiver,
                            std::size_t& headBytes, Clock::time_point latest, const std::stop_token& stop) {
    const auto proxies =
        OndelCore::platform::systemProxies(request.url.toEncoded(QUrl::RemoveUserInfo).toStdString());
    if (stop.stop_requested())
        throw Stopped();
    std::optional<TransportError> last;
    for (const std::string& proxy : proxies) {
        Transfer transfer(request, connection, receiver, proxy, headBytes, latest);
        try {
            return transfer.run(stop);
        } catch (const TransportError& error) {
            if (transfer.hasAnswer() || error.kind() != Kind::failed || request.body)
                throw;
            last = error;
        }
    }
    throw last.value_or(TransportError(Kind::failed, "No proxy can be used"));
}

} // namespace

void exchange(const Request& first, const Connection& connection, const Receiver& receiver,
              const std::stop_token& stop) {
    Request request = first;
    std::size_t headBytes = 0;
    const auto latest = Clock::now() + connection.limit.value_or(2 * connection.patience);
    for (;; --request.redirects) {
        if (stop.stop_requested())
            throw Stopped();
        if (request.url.scheme() != QLatin1String("https") || request.url.host().isEmpty())
            throw TransportError(Kind::notHttps, "The address is not secure");
        const Head head = transferThroughProxies(request, connection, receiver, headBytes, latest, stop);
        const bool isRedirect =
            head.location && std::ranges::find(redirectStatuses, head.status) != redirectStatuses.end();
        if (!isRedirect || request.redirects == 0)
            return;
        request.url = request.url.resolved(QUrl::fromEncoded(*head.location, QUrl::StrictMode));
        request.url.setUserInfo({});
    }
}

} // namespace OndelAppSupport::https
