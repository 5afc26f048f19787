#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace fuzz {

/// What the fuzzer made up.
using Bytes = std::string_view;

/// Reads `bytes`. A fault stops the process.
void read(Bytes bytes);

/// Stops the process where what must always hold does not.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

inline QByteArrayView viewOf(Bytes bytes) { return {bytes.data(), static_cast<qsizetype>(bytes.size())}; }
inline QString textOf(Bytes bytes) { return QString::fromUtf8(viewOf(bytes)); }

} // namespace fuzz

/// The door by which libFuzzer comes in.
extern "C" inline __attribute__((used)) int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                                                   std::size_t size) {
    fuzz::read({reinterpret_cast<const char*>(data), size});
    return 0;
}
