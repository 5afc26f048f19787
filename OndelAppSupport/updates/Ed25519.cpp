#include "OndelAppSupport/updates/Ed25519.h"

#include <openssl/evp.h>

#include <memory>

namespace OndelAppSupport::updates {

namespace {

const unsigned char* bytes(QByteArrayView view) {
    return reinterpret_cast<const unsigned char*>(view.data());
}
std::size_t size(QByteArrayView view) { return static_cast<std::size_t>(view.size()); }

} // namespace

bool isSignedWithEd25519(QByteArrayView message, QByteArrayView signature, QByteArrayView publicKey) {
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytes(publicKey), size(publicKey)),
        EVP_PKEY_free);
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    return key && context && EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
           EVP_DigestVerify(context.get(), bytes(signature), size(signature), bytes(message),
                            size(message)) == 1;
}

} // namespace OndelAppSupport::updates
