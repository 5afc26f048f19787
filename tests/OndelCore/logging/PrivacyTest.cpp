// 200 made-up lines through every kind of field that takes a text. In the corpus, ⟨…⟩ must never come out,
// ⟦…⟧ comes out of the fields that show their text because no rule knows its shape, and ⟪…⟫ comes out of a
// name alone, as the extension. So the corpus is also the list of what the rules let through.

#include "CapturedLog.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <stdexcept>
#include <vector>

using namespace OndelCore::logging;

namespace {

struct Marks {
    const char* begin;
    const char* end;
};
constexpr Marks hidden{"⟨", "⟩"};
constexpr Marks shown{"⟦", "⟧"};
constexpr Marks extension{"⟪", "⟫"};

std::vector<std::string> piecesBetween(const std::string& text, const Marks& marks) {
    std::vector<std::string> pieces;
    const std::string begin = marks.begin;
    for (auto at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1))
        pieces.push_back(text.substr(at + begin.size(), text.find(marks.end, at) - at - begin.size()));
    return pieces;
}

void replaceAll(std::string& text, const std::string& piece, const std::string& replacement) {
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, at + replacement.size()))
        text.replace(at, piece.size(), replacement);
}

std::string unmarked(std::string text) {
    for (const Marks& marks : {hidden, shown, extension}) {
        replaceAll(text, marks.begin, "");
        replaceAll(text, marks.end, "");
    }
    return text;
}

void expectPieces(const std::string& body, const std::vector<std::string>& pieces, bool present) {
    for (const std::string& piece : pieces)
        EXPECT_EQ(body.find(piece) != std::string::npos, present) << piece << "\n in " << body;
}

} // namespace

TEST(Privacy, NothingSurvivesButWhatNoRuleKnows) {
    std::map<std::string, test::CapturedLog> logs;
    logs.try_emplace("annika", OndelCore::platform::UserFacts{"annika", "Annika Öström", "kestrel-tower",
                                                              "/srv/people/annika"});
    logs.try_emplace("namesake",
                     OndelCore::platform::UserFacts{"annika", "", "annika-thinkpad", "/home/annika"});
    logs.try_emplace("root", OndelCore::platform::UserFacts{"root", "root", "vault-9", "/root"});

    std::ifstream corpus(PRIVACY_CORPUS);
    int count = 0;
    for (std::string line; std::getline(corpus, line); ++count) {
        const auto tab = line.find('\t');
        test::CapturedLog& captured = logs.at(line.substr(0, tab));
        std::string marked = line.substr(tab + 1);
        replaceAll(marked, "\\t", "\t");
        replaceAll(marked, "\\n", "\n");
        replaceAll(marked, "\\\\", "\\");
        const std::string text = unmarked(marked);
        const std::filesystem::filesystem_error thrown(text, text,
                                                       std::error_code(2, std::generic_category()));
        const LogField fields[] = {LogField::token("value", text), LogField::classified("value", text),
                                   LogField::name("value", text), LogField::opaque("value", text),
                                   LogField::failure(thrown)};
        for (std::size_t kind = 0; kind < std::size(fields); ++kind) {
            SCOPED_TRACE(marked);
            captured.log().notice("line", fields[kind]);
            const std::string body = captured.takeBody();
            const bool showsText = kind < 2;
            expectPieces(body, piecesBetween(marked, hidden), false);
            expectPieces(body, piecesBetween(marked, shown), showsText);
            expectPieces(body, piecesBetween(marked, extension), kind == 2);
        }
    }
    EXPECT_EQ(count, 200);
}
