// tarnwick-host-card: draws the cards of tarnwick-host, which starts it. Usage: [--dark] RUNFILE…

#include "TarnwickHost/Command.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/RunFiles.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QGuiApplication>

#include <array>
#include <cstdlib>
#include <exception>
#include <string_view>
#include <vector>

using namespace TarnwickHost;
using namespace TarnwickKit;

namespace {

constexpr std::array options{Option{"--dark", "", ""}};

/// Qt aborts if one of its plugins is missing. This prints the reason on one line instead.
void explainFailure(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtCriticalMsg && type != QtFatalMsg)
        return;
    //: %1: the reason.
    complain(HostFiles::tr("The picture could not be drawn: %1").arg(message.simplified()));
    if (type == QtFatalMsg)
        std::_Exit(failed);
}

int draw(const CommandLine& line) {
    const auto [runs, isWhole] = readRuns(line.operands());
    if (runs.empty() || !isWhole)
        return failed;
    const bool isDark = line.has("--dark");
    views::TarnwickFonts::registerFrom();
    const auto file =
        runs.size() == 1
            ? views::reportImage({runs.front()}, isDark)
            : views::ComparisonImage::render(runs, isDark ? views::Palette::dark() : views::Palette::light());
    if (!file) {
        complain(
            HostFiles::tr("The picture could not be drawn, or not be written to your temporary folder."));
        return failed;
    }
    print(file->string() + '\n');
    return done;
}

} // namespace

int main(int argc, char** argv) {
    // Drawing needs no display, and one that is named may not be reachable.
    setenv("QT_QPA_PLATFORM", "offscreen", 0); // NOLINT(concurrency-mt-unsafe): no other thread runs yet
    qInstallMessageHandler(explainFailure);
    try {
        const std::vector<const char*> words(argv + 1, argv + argc); // Qt takes some of them away
        const QGuiApplication application(argc, argv);
        model::Language::install();
        const CommandLine line(options, words);
        return draw(line);
    } catch (const std::exception& error) {
        complain(std::string_view(error.what()));
        return failed;
    }
}
