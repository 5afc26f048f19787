#pragma once

#include <QByteArrayView>

namespace OndelAppSupport::updates {

/// Whether `signature` (64 bytes) is that of the key's owner (32 bytes, raw) over exactly `message` (RFC
/// 8032). Threads: any; takes about 2 ms per MiB. Fails: false, also for a key or a signature of another
/// size.
bool isSignedWithEd25519(QByteArrayView message, QByteArrayView signature, QByteArrayView publicKey);

} // namespace OndelAppSupport::updates
