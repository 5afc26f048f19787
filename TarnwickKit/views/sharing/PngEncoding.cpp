// PNG (ISO/IEC 15948): a signature, then chunks of length, type, content and checksum. The content of IDAT is
// one zlib stream of lines, each behind a byte that names its filter.

#include "TarnwickKit/views/sharing/PngEncoding.h"

#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <array>

namespace TarnwickKit::views {

namespace {

constexpr int level = 2; // from 3 on it takes longer than it saves

void appendNumber(QByteArray& file, quint32 number) {
    const quint32 big = qToBigEndian(number);
    file.append(reinterpret_cast<const char*>(&big), sizeof big);
}

void appendChunk(QByteArray& file, const char (&type)[5], const QByteArray& content) {
    appendNumber(file, static_cast<quint32>(content.size()));
    const qsizetype start = file.size();
    file.append(type, 4).append(content);
    const auto* summed = reinterpret_cast<const Bytef*>(file.constData() + start);
    appendNumber(file, static_cast<quint32>(crc32_z(0, summed, static_cast<z_size_t>(file.size() - start))));
}

QByteArray header(QSize size) {
    QByteArray content;
    appendNumber(content, static_cast<quint32>(size.width()));
    appendNumber(content, static_cast<quint32>(size.height()));
    constexpr char bitsPerChannel = 8;
    constexpr char colorWithAlpha = 6;
    content.append(bitsPerChannel).append(colorWithAlpha);
    return content.append(3, '\0'); // deflate, the five standard filters, not interlaced
}

/// A deflate stream that ends with the object.
class Packing {
public:
    explicit Packing(qsizetype expectedBytes) {
        m_isGood = deflateInit(&m_stream, level) == Z_OK;
        m_packed.reserve(expectedBytes);
    }
    ~Packing() { deflateEnd(&m_stream); }
    Packing(const Packing&) = delete;
    Packing& operator=(const Packing&) = delete;

    void add(const QByteArray& bytes, int flush = Z_NO_FLUSH) {
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data())); // it is only read
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        do {
            m_stream.next_out = m_buffer.data();
            m_stream.avail_out = static_cast<uInt>(m_buffer.size());
            m_isGood = m_isGood && deflate(&m_stream, flush) != Z_STREAM_ERROR;
            m_packed.append(reinterpret_cast<const char*>(m_buffer.data()),
                            static_cast<qsizetype>(m_buffer.size() - m_stream.avail_out));
        } while (m_isGood && m_stream.avail_out == 0);
    }
    QByteArray end() {
        add({}, Z_FINISH);
        return m_isGood ? m_packed : QByteArray();
    }

private:
    z_stream m_stream{};
    std::array<Bytef, 65536> m_buffer{};
    QByteArray m_packed;
    bool m_isGood;
};

/// Some lines at a time, so that a picture takes no memory beside itself.
QByteArray packedLines(const QImage& image) {
    constexpr int linesAtATime = 32;
    constexpr char unfiltered = 0;
    const qsizetype length = qsizetype{4} * image.width();
    Packing packing(image.sizeInBytes() / 16);
    for (int top = 0; top < image.height(); top += linesAtATime) {
        const QImage rgba = image.copy(0, top, image.width(), std::min(linesAtATime, image.height() - top))
                                .convertToFormat(QImage::Format_RGBA8888);
        QByteArray raw;
        raw.reserve((length + 1) * rgba.height());
        for (int y = 0; y < rgba.height(); ++y)
            raw.append(unfiltered).append(reinterpret_cast<const char*>(rgba.constScanLine(y)), length);
        packing.add(raw);
    }
    return packing.end();
}

} // namespace

QByteArray encodedPng(const QImage& image) {
    const QByteArray packed = image.isNull() ? QByteArray() : packedLines(image);
    if (packed.isEmpty())
        return {};
    QByteArray file("\x89PNG\r\n\x1a\n");
    appendChunk(file, "IHDR", header(image.size()));
    appendChunk(file, "IDAT", packed);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace TarnwickKit::views
