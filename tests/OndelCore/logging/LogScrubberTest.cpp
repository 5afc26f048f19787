#include "OndelCore/logging/LogScrubber.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <random>

using OndelCore::logging::LogScrubber;
using OndelCore::platform::UserFacts;

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

// A backtracking engine with the same patterns is the reference, where it is fast enough.
TEST(LogScrubber, AgreesWithABacktrackingEngine) {
    const std::pair<const char*, const char*> rules[] = {
        {R"(/Users/[^/\s]+(/[^\s"']*)?)", "«path»"},
        {R"(/(home|var/root)/[^/\s]+(/[^\s"']*)?)", "«path»"},
        {R"([A-Z0-9._%+-]+@[A-Z0-9.-]+\.[A-Z]{2,})", "«email»"},
        {R"(\b(\d{1,3}\.){3}\d{1,3}\b)", "«ip»"},
        {R"(\b(?:[A-F0-9]{1,4}:){4,7}[A-F0-9]{1,4}\b)", "«ip»"},
        {R"(\b[A-Za-z0-9+/_-]{32,}={0,2}\b)", "«secret»"}};
    const char* pieces[] = {"/Users/", "/home/", "/var/root/", "@",        ".",
                            ":",       "10.2",   "a",          "B3",       "é",
                            " ",       "\"",     "/",          "=",        "-",
                            "_",       "+",      "0",          ".1",       "f:",
                            "%",       "x.yz",   "\t",         "abcdefgh", "0123456789ABCDEF"};
    const LogScrubber scrubber(UserFacts{});
    std::mt19937 random(20260314);
    for (int round = 0; round < 5000; ++round) {
        // Every line has each trigger, so that every pattern is tried.
        std::string line = "/Users/ /home/ 1.1 " + std::string(32, '-') + ":@ ";
        for (auto length = random() % 24; length > 0; --length)
            line += pieces[random() % std::size(pieces)];
        QString expected = QString::fromStdString(line);
        for (const auto& [pattern, replacement] : rules)
            expected.replace(QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption),
                             replacement);
        std::string text = line;
        scrubber.scrubByRules(text);
        ASSERT_EQ(text, expected.toStdString()) << line;
    }
}
