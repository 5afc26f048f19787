// Measures the file system of a folder, prints the figures and hands the run to Ondel Tarnwick.
#include <OndelCore/benchmark/BenchmarkEngine.h>
#include <OndelCore/volumes/VolumeCapabilities.h>
#include <OndelCore/volumes/VolumeInfo.h>
#include <TarnwickKit/model/format/Format.h>
#include <TarnwickKit/model/runs/TarnwickReport.h>

#include <exception>
#include <iostream>
#include <string>

using namespace OndelCore::benchmark;
using namespace OndelCore::volumes;
using namespace TarnwickKit::model;

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "measure-folder FOLDER [--open]\n";
        return 2;
    }
    BenchmarkPlan plan;
    plan.size = BenchmarkSize::fixed(268435456);
    try {
        const QDateTime begin = QDateTime::currentDateTimeUtc();
        const BenchmarkResult result = BenchmarkEngine().measure(plan, argv[1]);
        const auto report = TarnwickReport::from(result, VolumeInfo::load(Location::local(argv[1])),
                                                 VolumeCapabilities::probe(argv[1]), begin, plan);
        std::cout << report.run.title().toStdString() << '\n'
                  << "Write  " << TarnwickFormat::rate(*report.writeBytesPerSecond()).toStdString() << '\n'
                  << "Read   " << TarnwickFormat::rate(*report.readBytesPerSecond()).toStdString() << '\n';
        for (const QString& remark : report.remarks())
            std::cout << remark.toStdString() << '\n';
        const bool opens = argc > 2 && argv[2] == std::string("--open");
        if (opens && !report.openInApplication())
            std::cerr << "Ondel Tarnwick did not open the run.\n";
    } catch (const std::exception& error) {
        std::cerr << "The run failed: " << error.what() << '\n';
        return 1;
    }
}
