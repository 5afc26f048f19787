// PNG (ISO/IEC 15948): a signature, then chunks of length, type, content and checksum. The content of IDAT is
// one zlib stream of lines, each behind a byte that names its filter.

#include "TarnwickKit/views/PngEncoding.h"

#include <QtEndian>

#include <zlib.h>

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

QByteArray lines(const QImage& rgba) {
    constexpr char unfiltered = 0;
    const qsizetype length = qsizetype{4} * rgba.width();
    QByteArray raw;
    raw.reserve((length + 1) * rgba.height());
    for (int y = 0; y < rgba.height(); ++y)
        raw.append(unfiltered).append(reinterpret_cast<const char*>(rgba.constScanLine(y)), length);

    uLongf size = compressBound(static_cast<uLong>(raw.size()));
    QByteArray packed(static_cast<qsizetype>(size), Qt::Uninitialized);
    const int result =
        compress2(reinterpret_cast<Bytef*>(packed.data()), &size,
                  reinterpret_cast<const Bytef*>(raw.constData()), static_cast<uLong>(raw.size()), level);
    return result == Z_OK ? packed.first(static_cast<qsizetype>(size)) : QByteArray();
}

} // namespace

QByteArray encodedPng(const QImage& image) {
    const QByteArray packed =
        image.isNull() ? QByteArray() : lines(image.convertToFormat(QImage::Format_RGBA8888));
    if (packed.isEmpty())
        return {};
    QByteArray file("\x89PNG\r\n\x1a\n");
    appendChunk(file, "IHDR", header(image.size()));
    appendChunk(file, "IDAT", packed);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace TarnwickKit::views
