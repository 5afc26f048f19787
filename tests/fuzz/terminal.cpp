#include "TarnwickKit/model/format/DisplayText.h"
#include "fuzz/Fuzz.h"

#include <algorithm>

using namespace TarnwickKit::model;

/// Nothing that a terminal obeys comes out.
void fuzz::read(Bytes bytes) {
    const auto isShowable = [](const QString& text) {
        return std::none_of(text.begin(), text.end(), [](QChar c) {
            return c.unicode() < 0x20 || (c.unicode() >= 0x7f && c.unicode() < 0xa0);
        });
    };
    const QString text = textOf(bytes);
    require(isShowable(harmless(text)));
    for (const int columns : {1, 7, 80}) {
        const QString cut = fitted(text, columns);
        require(isShowable(cut) && columnsOf(cut) <= columns);
    }
    require(isShowable(QString::fromStdString(quoted(bytes))));
}
