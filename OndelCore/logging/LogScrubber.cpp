#include "OndelCore/logging/LogScrubber.h"

#include "OndelCore/logging/Utf8.h"

#include <re2/re2.h>

#include <array>
#include <memory>
#include <string_view>
#include <utility>

namespace OndelCore::logging {

namespace {

bool contains(std::string_view text, std::string_view piece) {
    return text.find(piece) != std::string_view::npos;
}

bool hasDottedNumber(std::string_view text) {
    for (auto stop = text.find('.', 1); stop != std::string_view::npos; stop = text.find('.', stop + 1))
        if (isDigit(text[stop - 1]) && stop + 1 < text.size() && isDigit(text[stop + 1]))
            return true;
    return false;
}

constexpr auto opaqueBytes = [] {
    std::array<bool, 256> table{};
    for (const char c :
         std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+-/_"))
        table.at(static_cast<unsigned char>(c)) = true;
    return table;
}();

bool hasLongOpaqueRun(std::string_view text) {
    constexpr std::size_t longRun = 32;
    std::size_t run = 0;
    for (const char c : text) {
        run = opaqueBytes[static_cast<unsigned char>(c)] ? run + 1 : 0;
        if (run == longRun)
            return true;
    }
    return false;
}

struct Rule {
    bool (*trigger)(std::string_view);
    std::unique_ptr<const RE2> regex;
    const char* replacement;
};

/// RE2, because it takes linear time on every text. A backtracking engine would need minutes for a few
/// kilobytes of "a…a@", or give up without replacing the private text.
std::vector<Rule> makeRules() {
    const std::array<std::tuple<bool (*)(std::string_view), const char*, const char*>, 6> sources{{
        {[](std::string_view text) { return contains(text, "/Users/"); }, R"re(/Users/[^/\s]+(/[^\s"']*)?)re",
         "«path»"},
        {[](std::string_view text) { return contains(text, "/home/") || contains(text, "/var/root/"); },
         R"re(/(home|var/root)/[^/\s]+(/[^\s"']*)?)re", "«path»"},
        {[](std::string_view text) { return contains(text, "@"); },
         R"re([A-Z0-9._%+-]+@[A-Z0-9.-]+\.[A-Z]{2,})re", "«email»"},
        {hasDottedNumber, R"re(\b(\d{1,3}\.){3}\d{1,3}\b)re", "«ip»"},
        {[](std::string_view text) { return contains(text, ":"); },
         R"re(\b(?:[A-F0-9]{1,4}:){4,7}[A-F0-9]{1,4}\b)re", "«ip»"},
        {hasLongOpaqueRun, R"re(\b[A-Za-z0-9+/_-]{32,}={0,2}\b)re", "«secret»"},
    }};
    RE2::Options options;
    options.set_case_sensitive(false);
    options.set_log_errors(false);
    std::vector<Rule> rules;
    for (const auto& [trigger, pattern, replacement] : sources)
        if (auto regex = std::make_unique<const RE2>(pattern, options); regex->ok())
            rules.push_back({trigger, std::move(regex), replacement});
    return rules;
}

const std::vector<Rule>& rules() {
    static const std::vector<Rule>& rules = *new std::vector<Rule>(makeRules());
    return rules;
}

void replaceAll(std::string& text, std::string_view piece, std::string_view replacement) {
    std::string replaced;
    std::size_t from = 0;
    for (auto at = text.find(piece); at != std::string::npos; at = text.find(piece, from)) {
        replaced.append(text, from, at - from).append(replacement);
        from = at + piece.size();
    }
    text = std::move(replaced.append(text, from));
}

} // namespace

LogScrubber::LogScrubber(const platform::UserFacts& user)
    : m_net(user) {
    constexpr std::size_t tooShortToTell = 2; // "jo" is part of too many words
    for (const auto& fact : {user.shortName, user.fullName, user.hostName, user.homeFolder}) {
        std::string text = fact.value_or("");
        mendUtf8(text);
        if (characterCount(text) > tooShortToTell)
            m_literals.push_back(std::move(text));
    }
}

const LogScrubber& LogScrubber::shared() {
    static const LogScrubber& scrubber = *new LogScrubber(platform::userFacts());
    return scrubber;
}

int LogScrubber::scrub(std::string& line) const { return scrubByRules(line) + m_net.scrub(line); }

int LogScrubber::scrubByRules(std::string& line) const {
    int count = 0;
    for (const std::string& literal : m_literals) {
        if (!contains(line, literal))
            continue;
        replaceAll(line, literal, "«local»");
        ++count;
    }
    for (const Rule& rule : rules())
        if (rule.trigger(line))
            count += RE2::GlobalReplace(&line, *rule.regex, rule.replacement);
    return count;
}

} // namespace OndelCore::logging
