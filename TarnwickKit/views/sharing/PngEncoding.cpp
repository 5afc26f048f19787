#include "TarnwickKit/views/sharing/PngEncoding.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <new>

namespace TarnwickKit::views {

namespace {

constexpr int level = 2; // higher levels take more time than the smaller file is worth
constexpr int bitsPerChannel = 8;
constexpr int linesAtATime = 32; // are converted, so that a picture takes no second one's memory

/// A PNG file in memory. libpng reports errors by a jump; `run` keeps its jumps from passing destructors.
class PngWriter {
public:
    explicit PngWriter(qsizetype expectedBytes) {
        m_file.reserve(expectedBytes);
        m_png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, ignoreWarning);
        m_info = m_png ? png_create_info_struct(m_png) : nullptr;
    }
    ~PngWriter() { png_destroy_write_struct(&m_png, &m_info); }
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;

    bool begin(QSize size) {
        return m_info && run([&] {
                   png_set_write_fn(m_png, &m_file, append, nullptr);
                   png_set_compression_level(m_png, level);
                   png_set_filter(m_png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
                   // One chunk of data instead of one per 8 KiB. Only what is used of the buffer takes
                   // memory.
                   png_set_compression_buffer_size(m_png, std::size_t{4} << 20);
                   png_set_IHDR(m_png, m_info, static_cast<png_uint_32>(size.width()),
                                static_cast<png_uint_32>(size.height()), bitsPerChannel, PNG_COLOR_TYPE_RGBA,
                                PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
                   png_write_info(m_png, m_info);
               });
    }

    bool add(const QImage& rgba) {
        std::array<png_const_bytep, linesAtATime> lines{};
        for (int y = 0; y < rgba.height(); ++y)
            lines[static_cast<std::size_t>(y)] = rgba.constScanLine(y);
        return run([&] {
            png_write_rows(m_png, const_cast<png_bytepp>(lines.data()), // it only reads them
                           static_cast<png_uint_32>(rgba.height()));
        });
    }

    QByteArray end() {
        return run([&] { png_write_end(m_png, nullptr); }) ? m_file : QByteArray();
    }

private:
    /// False after an error in `calls`, which must own nothing.
    template <typename Calls>
    bool run(const Calls& calls) {
        if (setjmp(png_jmpbuf(m_png))) // NOLINT(cert-err52-cpp): libpng's own interface
            return false;
        calls();
        return true;
    }

    static void append(png_structp png, png_bytep bytes, std::size_t count) {
        if (!appended(*static_cast<QByteArray*>(png_get_io_ptr(png)), bytes, count))
            png_error(png, "no memory");
    }
    static bool appended(QByteArray& file, const png_byte* bytes, std::size_t count) {
        try {
            file.append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
            return true;
        } catch (const std::bad_alloc&) {
            return false;
        }
    }
    static void ignoreWarning(png_structp, png_const_charp) {}

    QByteArray m_file;
    png_structp m_png = nullptr;
    png_infop m_info = nullptr;
};

} // namespace

QByteArray encodedPng(const QImage& image) {
    if (image.isNull())
        return {};
    PngWriter writer(image.sizeInBytes() / 16 + 1024);
    if (!writer.begin(image.size()))
        return {};
    for (int top = 0; top < image.height(); top += linesAtATime) {
        const int height = std::min(linesAtATime, image.height() - top);
        const QImage lines =
            image.copy(0, top, image.width(), height).convertToFormat(QImage::Format_RGBA8888);
        if (lines.isNull() || !writer.add(lines))
            return {};
    }
    return writer.end();
}

} // namespace TarnwickKit::views
