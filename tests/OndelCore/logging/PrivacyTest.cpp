// 200 invented lines through every kind of text field. In the corpus, ⟨…⟩ must never appear in the log. ⟦…⟧
// appears from a token, because no rule matches it. ⟪…⟫ appears only from a name, as its extension. So the
// corpus also lists what the rules miss.

#include "CapturedLog.h"

#include <algorithm>
#include <tuple>
#include <vector>

using namespace OndelCore::logging;
using OndelCore::platform::UserFacts;

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

struct Line {
    std::string user;
    std::string marked;
};

std::vector<Line> linesOf(const char* corpus) {
    std::ifstream stream(std::string(CORPORA) + corpus);
    std::vector<Line> lines;
    for (std::string line; std::getline(stream, line);) {
        const auto tab = line.find('\t');
        std::string marked = line.substr(tab + 1);
        replaceAll(marked, "\\t", "\t");
        replaceAll(marked, "\\n", "\n");
        replaceAll(marked, "\\\\", "\\");
        lines.push_back({line.substr(0, tab), marked});
    }
    return lines;
}

const std::map<std::string, OndelCore::platform::UserFacts> users{
    {"annika", {"annika", "Annika Öström", "kestrel-tower", "/srv/people/annika"}},
    {"namesake", {"annika", "", "annika-thinkpad", "/home/annika"}},
    {"root", {"root", "root", "vault-9", "/root"}},
    {"jo", {"jo", "Jo Li", "kite.corp.example", "/home/jo"}}};

/// The lines of a corpus that keep private text, as a `token` or as `classified`.
template <typename Scrub>
std::vector<std::string> survivors(const char* corpus, const Scrub& scrub) {
    std::vector<std::string> kept;
    for (const auto& [user, marked] : linesOf(corpus))
        for (const char* quote : {"", "\""}) {
            std::string body = "line value=" + (quote + unmarked(marked) + quote);
            scrub(users.at(user), body);
            const auto pieces = piecesBetween(marked, hidden);
            if (std::ranges::any_of(
                    pieces, [&](const auto& piece) { return body.find(piece) != std::string::npos; })) {
                kept.push_back(body);
                break;
            }
        }
    return kept;
}

} // namespace

TEST(Privacy, LinuxRulesCatchWhatTheCommonRulesMiss) {
    const auto byRules = [](const auto& user, std::string& line) { LogScrubber(user).scrubByRules(line); };
    const auto byBoth = [](const auto& user, std::string& line) { LogScrubber(user).scrub(line); };
    // The second list was written independently of the rules.
    for (const auto& [corpus, least, letThrough] :
         {std::tuple("private-linux-lines.tsv", 190U, 100U), {"private-linux-lines-2.tsv", 60U, 30U}}) {
        EXPECT_GE(linesOf(corpus).size(), least);
        EXPECT_GE(survivors(corpus, byRules).size(), letThrough) << "the list proves nothing";
        EXPECT_EQ(survivors(corpus, byBoth), std::vector<std::string>()) << corpus;
    }
}

TEST(Privacy, LeavesHarmlessLinesUnchanged) {
    std::ifstream corpus(std::string(CORPORA) + "harmless-lines.txt");
    int count = 0;
    for (std::string line; std::getline(corpus, line); ++count)
        for (const auto& [name, user] : users) {
            std::string byRules = line;
            std::string byBoth = line;
            const LogScrubber scrubber(user);
            scrubber.scrubByRules(byRules);
            scrubber.scrub(byBoth);
            EXPECT_EQ(byBoth, byRules) << name;
        }
    EXPECT_GT(count, 100);
}

TEST(Privacy, RemovesAllButKnownGaps) {
    std::map<std::string, test::CapturedLog> logs;
    for (const auto& [name, user] : users)
        logs.try_emplace(name, user);
    const auto lines = linesOf("privacy-corpus.tsv");
    for (const auto& [user, marked] : lines) {
        test::CapturedLog& captured = logs.at(user);
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
            if (kind != 1) // quotes mark the end of a path with blanks
                expectPieces(body, piecesBetween(marked, shown), showsText);
            expectPieces(body, piecesBetween(marked, extension), kind == 2);
        }
    }
    EXPECT_EQ(lines.size(), 200U);
}

namespace {

struct Case {
    std::string line;
    std::string scrubbed;
    int count;
};

void expectScrubbed(const LogScrubber& scrubber, const std::vector<Case>& cases) {
    for (const auto& [line, scrubbed, count] : cases) {
        std::string text = line;
        EXPECT_EQ(scrubber.scrubByRules(text), count) << line;
        EXPECT_EQ(text, scrubbed);
    }
}

} // namespace

TEST(LogScrubber, ReplacesPatternsOfPrivateText) {
    const std::string run31(31, 'k');
    expectScrubbed(
        LogScrubber(UserFacts{}),
        {{"clean line", "clean line", 0},
         {"", "", 0},
         {"at /Users/ann and /Users/bob/x y", "at «path» and «path» y", 2},
         {"/Users/ann/a\"b", "«path»\"b", 1},
         {"/users/ann", "/users/ann", 0},
         {"/Users/ /users/ann/x", "/Users/ «path»", 1},
         {"/home/ann/x", "«path»", 1},
         {"/var/root/x /HOME/ann/y", "«path» «path»", 2},
         {"/home/", "/home/", 0},
         {"Ann.Example+tag@Mail.Example.ORG!", "«email»!", 1},
         {"a@b.c", "a@b.c", 0},
         {"a@b.cc-d@e.ff", "«email»«email»", 2},
         {"10.0.0.1, 2.40.1.7 and 1.2.3", "«ip», «ip» and 1.2.3", 2},
         {"1000.0.0.1", "1000.0.0.1", 0},
         {"12:34:56", "12:34:56", 0},
         {"at 2001:db8:1:2:3:4:5:6, 1:2:3:4:5", "at «ip», «ip»", 2},
         {"1:2:3:4", "1:2:3:4", 0},
         {run31, run31, 0},
         {run31 + "k", "«secret»", 1},
         {"key=" + run31 + "k==", "key=«secret»==", 1}, // there is no word boundary after the equals signs
         {run31 + "k=x", "«secret»x", 1},
         {std::string(40, '-'), std::string(40, '-'), 0}});
}

TEST(LogScrubber, ReplacesNamesOfTheUserFirst) {
    const LogScrubber scrubber(UserFacts{"ann", "ann Example", "bo", "/srv/ann"});
    expectScrubbed(scrubber, {{"/Users/ann/x", "«path»", 2},
                              {"ann ann ann", "«local» «local» «local»", 1},
                              {"ann Example on bo", "«local» Example on bo", 1},
                              {"/srv/ann/x", "/srv/«local»/x", 1}});
    expectScrubbed(LogScrubber(UserFacts{"", "", "box9", "/box9"}), {{"/box9/x", "/«local»/x", 1}});
    const std::string family = "👨‍👩‍👧‍👦";
    expectScrubbed(
        LogScrubber(UserFacts{family + "e\u0301", std::nullopt, "", "/root"}), // two characters: too short
        {{family + "e\u0301 /root/x", family + "e\u0301 «local»/x", 1}});
}
