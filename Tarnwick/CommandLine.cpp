#include "Tarnwick/CommandLine.h"

#include "OndelCore/platform/process/UnifiedLog.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/FileUrl.h"
#include "Tarnwick/OpenUrls.h"
#include "Tarnwick/Product.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/language/Language.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace {

/// Those that the desktop entry lists. An option has an action's name.
constexpr std::array<std::string_view, 2> optionActions{"check-capacity", "choose-folder"};

std::string_view actionOf(std::string_view word) {
    if (!word.starts_with("--"))
        return {};
    const auto* const found = std::ranges::find(optionActions, word.substr(2));
    return found == optionActions.end() ? std::string_view() : *found;
}

struct CommandLineText {
    Q_DECLARE_TR_FUNCTIONS(CommandLineText)
};

QString usage() {
    //: tarnwick is the name of the command; FOLDER, FILE, URL and what begins with -- stay
    return CommandLineText::tr(
        "Usage: tarnwick [--check-capacity | --choose-folder] [FOLDER | FILE | URL]...\n"
        "Opens the disk speed and volume analyzer, with the first folder chosen and "
        "run files (*.tarnwickrun) shown.\n"
        "  --check-capacity  go on to the check of that folder's volume\n"
        "  --choose-folder   ask for a folder\n");
}

void complain(const char* word) {
    const QString sentence = CommandLineText::tr("%1 is not a folder or a run file that can be opened.")
                                 .arg(QString::fromStdString(TarnwickKit::model::quoted(word)));
    std::fprintf(stderr, "tarnwick: %s\n", qUtf8Printable(sentence));
}

std::span<char*> wordsOf(int argc, char** argv) {
    return std::span(argv, static_cast<std::size_t>(argc)).subspan(argc > 0 ? 1 : 0);
}

bool looksLikeUrl(std::string_view word) {
    const std::size_t end = word.find("://");
    return end != std::string_view::npos && end > 0 && word.find('/') > end;
}

std::string urlOf(const char* word) {
    using namespace OndelCore::platform;
    if (looksLikeUrl(word)) {
        const auto file = pathFacts(word, PathQuestion::place, {.patience = volumePatience});
        if (file && file->error != 0)
            return word;
    }
    std::error_code error;
    const fs::path path = fs::absolute(word, error);
    return OndelCore::volumes::fileUrl(error ? fs::path(word) : path.lexically_normal());
}

} // namespace

std::optional<int> CommandLine::answerWithoutWindow(int argc, char** argv) {
    for (const std::string_view word : wordsOf(argc, argv)) {
        if (word == "--")
            break;
        if (word == "--help" || word == "-h") {
            const QCoreApplication application(argc, argv); // it holds the catalogue
            TarnwickKit::model::Language::install();
            std::fputs(qUtf8Printable(usage()), stdout);
            return EXIT_SUCCESS;
        }
        if (word == "--version") {
            std::printf("%s %s\n", product::name, ONDEL_VERSION);
            return EXIT_SUCCESS;
        }
    }
    return std::nullopt;
}

std::optional<CommandLine> CommandLine::parse(int argc, char** argv) {
    CommandLine line;
    std::vector<const char*> words;
    bool optionsHaveEnded = false;
    for (const char* word : wordsOf(argc, argv)) {
        if (!optionsHaveEnded && std::string_view(word) == "--") {
            optionsHaveEnded = true;
        } else if (const auto action = actionOf(optionsHaveEnded ? "" : word); !action.empty()) {
            line.action = action;
        } else if (!optionsHaveEnded && *word == '-') {
            std::fputs(qUtf8Printable(usage()), stderr);
            return std::nullopt;
        } else {
            words.push_back(word);
            line.urls.push_back(urlOf(word));
        }
    }
    // The desktop writes standard error into the log, which must not hold file names.
    if (OndelCore::platform::isStandardErrorLogged())
        return line;
    for (const std::size_t place : OpenUrls::from(line.urls).ignored)
        complain(words[place]);
    return line;
}
