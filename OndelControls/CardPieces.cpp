#include "OndelControls/CardPieces.h"

#include <array>
#include <utility>

namespace OndelControls {

namespace {

/// A part of the tile's picture in one direction, and where it goes. Where the two lengths differ it is one
/// pixel that goes on.
struct Span {
    int source = 0;
    int sourceLength = 0;
    int start = 0;
    int length = 0;

    bool goesOn() const { return length != sourceLength; }

    Span part(int from, int to) const {
        if (goesOn())
            return from < to ? *this : Span();
        return {source + from, to - from, start + from, to - from};
    }
};
using Spans = std::array<Span, 3>;

/// What goes on is the middle of the tile's three such pixels, so that no filter reaches what lies beside
/// them.
Spans spansOf(int tile, int card, int before, int after, int fixedBefore, int fixedAfter) {
    const int total = card + before + after;
    if (total <= tile)
        return {Span{0, tile, -before, total}};
    return {Span{0, fixedBefore, -before, fixedBefore},
            Span{fixedBefore + 1, 1, fixedBefore - before, total - fixedBefore - fixedAfter},
            Span{tile - fixedAfter, fixedAfter, card + after - fixedAfter, fixedAfter}};
}

/// Neighbouring pixels of one colour.
struct Run {
    int from = 0;
    int to = 0;
    QRgb pixel = 0; ///< premultiplied

    int length() const { return to - from; }
    bool isOpaque() const { return qAlpha(pixel) == 255; }
    bool isEmpty() const { return qAlpha(pixel) == 0; }
};

class Patchwork {
public:
    explicit Patchwork(const QImage& picture)
        : m_picture(picture) {}

    void add(const Span& row, const Span& column) {
        if (row.length <= 0 || column.length <= 0)
            return;
        if (!row.goesOn() && !column.goesOn()) {
            show(row, column);
            return;
        }
        // All that is in it stands in one line of pixels, across the direction in which it goes on.
        const bool isDownwards = column.goesOn();
        const Span& line = isDownwards ? row : column;
        const auto showPart = [&](int from, int to, const Run* run = nullptr) {
            const Span part = line.part(from, to);
            isDownwards ? show(part, column, run) : show(row, part, run);
        };
        const Run run = longestRun(line.sourceLength, isDownwards, QPoint(column.source, row.source));
        // A blend of its own would be a shade off the blend of the picture beside it.
        if (!run.isOpaque() && !run.isEmpty()) {
            show(row, column);
            return;
        }
        showPart(0, run.from);
        showPart(run.from, run.to, &run);
        showPart(run.to, line.sourceLength);
    }

    std::vector<CardPiece> take() { return std::move(m_pieces); }

private:
    Run longestRun(int count, bool isDownwards, QPoint first) const {
        Run longest;
        Run run;
        for (int i = 0; i < count; ++i) {
            const QPoint at = first + (isDownwards ? QPoint(0, i) : QPoint(i, 0));
            const QRgb pixel = reinterpret_cast<const QRgb*>(m_picture.constScanLine(at.y()))[at.x()];
            if (i == 0 || pixel != run.pixel)
                run = {i, i, pixel};
            run.to = i + 1;
            if (run.length() > longest.length())
                longest = run;
        }
        return longest;
    }

    void show(const Span& row, const Span& column, const Run* run = nullptr) {
        if (row.length <= 0 || column.length <= 0 || (run && run->isEmpty()))
            return;
        m_pieces.push_back({.place = QRect(column.start, row.start, column.length, row.length),
                            .source = QRect(column.source, row.source, run ? 1 : column.sourceLength,
                                            run ? 1 : row.sourceLength),
                            .filled = run ? QColor::fromRgb(run->pixel) : QColor()});
    }

    const QImage& m_picture;
    std::vector<CardPiece> m_pieces;
};

} // namespace

std::vector<CardPiece> cardPieces(const CardTile& tile, QSize card) {
    const Spans rows = spansOf(tile.image.height(), card.height(), tile.outside.top(), tile.outside.bottom(),
                               tile.fixed.top(), tile.fixed.bottom());
    const Spans columns = spansOf(tile.image.width(), card.width(), tile.outside.left(), tile.outside.right(),
                                  tile.fixed.left(), tile.fixed.right());
    Patchwork work(tile.image);
    for (const Span& row : rows)
        for (const Span& column : columns)
            work.add(row, column);
    return work.take();
}

} // namespace OndelControls
