/// The window on a simulated machine, for tests, pictures and benchmarks: staged-window MACHINE [TEXT]
///   drive    a drive with 25 health values, several of them a concern, on a volume with a long name
///   failing  the same, with a failing verdict of its own
///   silent   a drive without health values
///   partial  health values of two of three disks
///   blind    a target on an unknown volume
///   stream   a run that reports 50 jagged samples a second for a minute, without I/O
///   warm     the same with a drive that warms up from 38 to 71 degrees Celsius
///   five     the same for all five tests, six seconds each
///   named    all names of the volume and the drive are TEXT; the run takes a second

#include "OndelAppSupport/AppIdentity.h"
#include "OndelControls/ViewEngine.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/views/style/TarnwickFonts.h"

#include <QApplication>
#include <QPromise>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <chrono>
#include <cmath>
#include <functional>
#include <string_view>
#include <thread>

using namespace OndelCore;
using benchmark::BenchmarkTest;
using health::DiskSMART;
using TarnwickKit::model::AnalyzerServices;

namespace {

DiskSMART manyFigures(bool isFailing) {
    DiskSMART smart{.status = isFailing ? DiskSMART::Status::failing : DiskSMART::Status::verified,
                    .kind = "ATA",
                    .attributes = {}};
    for (int i = 0; i < 24; ++i)
        smart.attributes.push_back(
            {i == 5 ? "Reported uncorrectable errors and some more" : "Figure number " + std::to_string(i),
             i == 6 ? "18,446,744,073,709,551,615 sectors" : std::to_string(i * i * 977), i % 5 == 1});
    smart.attributes.push_back({"Temperature", "41 °C"});
    return smart;
}

DiskSMART twoOfThree() {
    DiskSMART smart{.status = DiskSMART::Status::verified, .kind = "NVMe, ATA", .attributes = {}};
    smart.note = "2 of 3 disks answered: sdb is asleep and was left alone";
    smart.attributes = {{"Disks", "2 of 3 disks answered"}, {"nvme0n1 · Status", "Verified"},
                        {"nvme0n1 · Temperature", "41 °C"}, {"nvme0n1 · Host write commands", "1,234,567"},
                        {"sda · Status", "Verified"},       {"sda · Reported uncorrectable", "3", true}};
    return smart;
}

void stream(int samples, bool hasSensor, const benchmark::ProgressListener& tell,
            const std::stop_token& stop) {
    for (int i = 0; i < samples && !stop.stop_requested(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const double rate = 2e9 * (1 + 0.4 * std::sin(i * 1.7) + 0.2 * std::sin(i * 0.031));
        tell({BenchmarkTest::sequentialWrite, i * 40'000'000LL, samples * 40'000'000LL, rate, i * 0.02,
              hasSensor ? std::optional(71 - 33 * std::exp(-i * 0.002)) : std::nullopt});
    }
}

/// The events of a test without rates, spread over six seconds.
void count(BenchmarkTest test, std::int64_t operations, std::int64_t step, std::int64_t unit,
           const benchmark::ProgressListener& tell, const std::stop_token& stop) {
    for (std::int64_t done = 0; done <= operations && !stop.stop_requested(); done += step) {
        const double share = static_cast<double>(done) / static_cast<double>(operations);
        tell({test, done * unit, operations * unit, 0, 6 * (share + 0.02 * std::sin(9 * share))});
        std::this_thread::sleep_for(std::chrono::milliseconds(6000 * step / operations));
    }
}

void allTests(const benchmark::ProgressListener& tell, const std::stop_token& stop) {
    stream(300, false, tell, stop);
    stream(
        300, false,
        [&tell](benchmark::BenchmarkProgress progress) {
            progress.test = BenchmarkTest::sequentialRead;
            tell(progress);
        },
        stop);
    count(BenchmarkTest::randomRead, 10000, 500, 4096, tell, stop);
    count(BenchmarkTest::randomWrite, 10000, 500, 4096, tell, stop);
    count(BenchmarkTest::fileOps, 4000, 250, 1, tell, stop);
}

/// A benchmark that only reports samples.
auto runOf(std::function<void(const benchmark::ProgressListener&, const std::stop_token&)> events) {
    return [events = std::move(events)](auto&&, auto&&, const benchmark::ProgressListener& tell,
                                        const std::stop_token& stop) {
        QPromise<benchmark::BenchmarkResult> result;
        auto future = result.future();
        std::thread([events, tell, stop, result = std::move(result)]() mutable {
            result.start();
            events(tell, stop);
            result.addResult(benchmark::BenchmarkResult{});
            result.finish();
        }).detach();
        return future;
    };
}

auto streamedRun(int samples, bool hasSensor = false) {
    return runOf([samples, hasSensor](const benchmark::ProgressListener& tell, const std::stop_token& stop) {
        stream(samples, hasSensor, tell, stop);
    });
}

/// Names of labels and file systems are arbitrary.
void nameEverything(AnalyzerServices& services, const std::string& text) {
    const QString name = QString::fromStdString(text);
    services.loadVolume = [load = services.loadVolume, name](const volumes::Location& location) {
        auto volume = load(location);
        volume->name = volume->format = name;
        return volume;
    };
    services.probeCapabilities = [probe = services.probeCapabilities, name](const auto& path) {
        auto capabilities = probe(path);
        capabilities->filesystemType = name;
        return capabilities;
    };
    services.readHealth = [text](const auto&) {
        return DiskSMART{.status = DiskSMART::Status::verified,
                         .kind = text,
                         .attributes = {{text, text, true}},
                         .note = text};
    };
    services.driveIdentity = [name](const auto&) { return TarnwickKit::model::DriveIdentity{name, name}; };
    services.runBenchmark = streamedRun(50);
}

AnalyzerServices machine(std::string_view name, const std::string& text) {
    AnalyzerServices services = AnalyzerServices::real();
    if (name == "drive" || name == "failing") {
        const bool isFailing = name == "failing";
        services.readHealth = [isFailing](const auto&) { return manyFigures(isFailing); };
        services.loadVolume = [load = services.loadVolume](const volumes::Location& location) {
            auto volume = load(location);
            volume->name = QStringLiteral("The drive from the attic that makes that noise, third try ok");
            return volume;
        };
    } else if (name == "silent") {
        services.readHealth = [](const auto&) {
            DiskSMART smart;
            smart.note = "nvme0n1 may only be asked by an administrator, and <b>UDisks2</b> does not answer";
            return std::optional(smart);
        };
    } else if (name == "partial") {
        services.readHealth = [](const auto&) { return std::optional(twoOfThree()); };
    } else if (name == "blind") {
        services.loadVolume = [](const auto&) { return std::nullopt; };
        services.probeCapabilities = [](const auto&) { return std::nullopt; };
    } else if (name == "stream" || name == "warm") {
        services.runBenchmark = streamedRun(3000, name == "warm");
    } else if (name == "five") {
        services.runBenchmark = runOf(allTests);
    } else if (name == "named") {
        nameEverything(services, text);
    }
    return services;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    OndelAppSupport::AppIdentity::current() = OndelAppSupport::AppIdentity::tarnwick();
    TarnwickKit::views::TarnwickFonts::registerFrom();
    application.setFont(TarnwickKit::views::TarnwickFonts::applicationFont());

    TarnwickKit::model::AnalyzerModel model(machine(argc > 1 ? argv[1] : "", argc > 2 ? argv[2] : ""));
    model.select(std::filesystem::temp_directory_path());

    QQmlApplicationEngine engine;
    OndelControls::prepareEngine(engine);
    engine.setInitialProperties({{QStringLiteral("analyzer"), QVariant::fromValue(&model)}});
    engine.loadData(R"(
        import QtQuick
        import TarnwickKit.views
        Window {
            property alias analyzer: view.analyzer
            title: "Ondel Tarnwick"
            width: 1180; height: 780
            visible: true
            TarnwickView { id: view; anchors.fill: parent; analyzer: null }
        })");
    return engine.rootObjects().isEmpty() ? EXIT_FAILURE : QApplication::exec();
}
