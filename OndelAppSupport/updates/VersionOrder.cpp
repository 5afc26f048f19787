#include "OndelAppSupport/updates/VersionOrder.h"

#include <algorithm>
#include <vector>

namespace OndelAppSupport::updates {

namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

struct Piece {
    QStringView text; ///< without leading zeros; empty for zero
    bool isNumber = false;

    bool isZero() const { return isNumber && text.empty(); }
};

/// Removes trailing zeros, so that 1.2.0b1 equals 1.2b1.
void dropZeros(std::vector<Piece>& pieces) {
    while (!pieces.empty() && pieces.back().isZero())
        pieces.pop_back();
}

std::vector<Piece> piecesOf(QStringView version) {
    std::vector<Piece> pieces;
    version = version.left(version.indexOf(u'+') < 0 ? version.size() : version.indexOf(u'+'));
    if (version.size() > 1 && (version[0] == u'v' || version[0] == u'V') && isDigit(version[1]))
        version = version.mid(1);
    while (!version.empty()) {
        const bool number = isDigit(version[0]);
        const auto end = std::find_if_not(version.begin(), version.end(),
                                          [number](QChar c) { return number ? isDigit(c) : c.isLetter(); });
        const auto length = std::max<qsizetype>(end - version.begin(), 0);
        QStringView text = version.left(length);
        version = version.mid(std::max<qsizetype>(length, 1)); // skips a separator
        if (length == 0)
            continue;
        while (number && text.startsWith(u'0'))
            text = text.mid(1);
        if (!number)
            dropZeros(pieces);
        pieces.push_back({text, number});
    }
    dropZeros(pieces);
    return pieces;
}

std::weak_ordering comparePieces(const Piece& left, const Piece& right) {
    if (left.isNumber != right.isNumber)
        return left.isNumber ? std::weak_ordering::greater : std::weak_ordering::less;
    if (left.isNumber && left.text.size() != right.text.size())
        return left.text.size() <=> right.text.size();
    return left.text.compare(right.text, Qt::CaseInsensitive) <=> 0;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right) {
    const auto a = piecesOf(left);
    const auto b = piecesOf(right);
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i)
        if (const auto order = comparePieces(a[i], b[i]); std::is_neq(order))
            return order;
    if (a.size() > common)
        return a[common].isNumber ? std::weak_ordering::greater : std::weak_ordering::less;
    if (b.size() > common)
        return b[common].isNumber ? std::weak_ordering::less : std::weak_ordering::greater;
    return std::weak_ordering::equivalent;
}

} // namespace OndelAppSupport::updates
