#include "OndelAppSupport/updates/PackageLoad.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <QFile>

#include <openssl/evp.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <system_error>

namespace OndelAppSupport::updates {

namespace fs = std::filesystem;

namespace {

using Cause = UpdateError::Cause;

constexpr qsizetype longestName = 100; // characters

/// Restricts the name to characters that no program interprets.
QString packageName(const QUrl& url) {
    QString name = url.fileName(QUrl::FullyDecoded).right(longestName);
    name.removeIf([](QChar c) {
        return c.unicode() > 0x7e || (!c.isLetterOrNumber() && !QStringView(u"._+~-").contains(c));
    });
    while (name.startsWith(u'.') || name.startsWith(u'-'))
        name.remove(0, 1);
    return name.isEmpty() ? QStringLiteral("update") : name;
}

void prepare(const fs::path& folder) {
    std::error_code error;
    fs::remove_all(folder, error); // earlier packages
    if (!error)
        fs::create_directory(folder, error);
    if (!error)
        fs::permissions(folder, fs::perms::owner_all, error);
    if (error)
        throw UpdateError(Cause::notWritable);
}

const unsigned char* bytes(QByteArrayView view) {
    return reinterpret_cast<const unsigned char*>(view.data());
}
std::size_t size(QByteArrayView view) { return static_cast<std::size_t>(view.size()); }

/// Whether `signature` (64 bytes) is that of the key's owner (32 bytes, raw) over exactly `message` (RFC
/// 8032). Takes about 2 ms per MiB. Fails: false, also for a key or a signature of another size.
bool isSignedWithEd25519(QByteArrayView message, QByteArrayView signature, QByteArrayView publicKey) {
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytes(publicKey), size(publicKey)),
        EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    return key && context && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
           EVP_DigestVerify(context.get(), bytes(signature), size(signature), bytes(message),
                            size(message)) == 1;
}

/// The package before it is verified. The file name is unique, so that an abandoned download which ends late
/// does no harm. Owner: the object, which removes the file unless it was kept.
class Part {
public:
    Part(const fs::path& name, qint64 length)
        : m_name(name)
        , m_file(fs::path(name) += "." + OndelCore::platform::newUuid() + ".part")
        , m_length(length) {
        if (!m_file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered,
                         QFile::ReadOwner | QFile::WriteOwner))
            throw UpdateError(Cause::notWritable);
    }
    ~Part() {
        if (!m_kept)
            m_file.remove();
    }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    void append(const https::Head& answer, QByteArrayView bytes) {
        if (answer.length.value_or(m_length) != m_length || size() + bytes.size() > m_length)
            throw UpdateError(Cause::wrongLength);
        errno = 0;
        if (m_file.write(bytes.data(), bytes.size()) != bytes.size())
            throw UpdateError(errno == ENOSPC || errno == EDQUOT ? Cause::noRoom : Cause::notWritable);
    }

    qint64 size() const { return m_file.pos(); }

    void verify(const QByteArray& signature, const QByteArray& key) {
        if (size() != m_length)
            throw UpdateError(Cause::wrongLength);
        const uchar* content = m_file.map(0, m_length);
        if (!content)
            throw UpdateError(Cause::notWritable);
        if (!isSignedWithEd25519({content, m_length}, signature, key))
            throw UpdateError(Cause::wrongSignature);
    }

    void keep() {
        std::error_code error;
        fs::rename(m_file.filesystemFileName(), m_name, error);
        if (error)
            throw UpdateError(Cause::notWritable);
        m_kept = true;
    }

private:
    fs::path m_name;
    QFile m_file;
    qint64 m_length;
    bool m_kept = false;
};

} // namespace

fs::path loadPackage(const Offer& offer, const Destination& destination, const https::Connection& connection,
                     const LoadProgress& progress, const std::stop_token& stop) {
    if (stop.stop_requested())
        throw https::Stopped();
    prepare(destination.folder);
    fs::path path = destination.folder / packageName(offer.url).toStdString();
    Part part(path, offer.length);
    httpsGet(
        offer.url, connection, Cause::packageUnreachable,
        [&](const https::Head& answer, QByteArrayView bytes) {
            part.append(answer, bytes);
            progress.loaded(part.size());
        },
        stop);
    progress.verifying();
    part.verify(offer.signature, destination.publicKey);
    if (stop.stop_requested())
        throw https::Stopped();
    part.keep();
    return path;
}

} // namespace OndelAppSupport::updates
