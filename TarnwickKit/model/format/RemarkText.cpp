#include "TarnwickKit/model/format/RemarkText.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/Plural.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::benchmark::RemarkWeight;

namespace {

struct RemarkText {
    Q_DECLARE_TR_FUNCTIONS(RemarkText)
};

/// A remark with numbers that can be spelled: their count fits, and none is negative or beyond what is real.
class Spelled {
public:
    explicit Spelled(const Remark& remark)
        : m_remark(remark) {}

    static bool isPossible(const Remark& remark) {
        constexpr double most = 1e18;
        return remark.numbers.size() == numbersOf(remark.code) &&
               std::ranges::all_of(remark.numbers, [](double value) { return value >= 0 && value <= most; });
    }

    double number(std::size_t index) const { return m_remark.numbers[index]; }
    bool isWrite() const {
        return m_remark.test == BenchmarkTest::sequentialWrite || m_remark.test == BenchmarkTest::randomWrite;
    }
    bool hasTest() const { return m_remark.test.has_value(); }

    QString size(std::size_t index) const { return Format::bytes(wholeNumber(number(index))); }
    QString block(std::size_t index) const { return Format::block(wholeNumber(number(index))); }
    QString rate(std::size_t index) const { return Format::rate(number(index)); }
    QString count(std::size_t index) const { return Format::grouped(number(index)); }
    QString percent(std::size_t index) const {
        return Format::percent(Format::grouped(number(index) * 100 + 1e-9));
    }
    /// Rounded up, for a share that is at most so much.
    double mostPercents(std::size_t index) const { return std::ceil(number(index) * 100 - 1e-9); }
    QString celsius(std::size_t index) const {
        return Format::leftToRight(Format::grouped(std::round(number(index))) + u" °C"_s);
    }
    QString seconds(std::size_t index) const {
        return Format::leftToRight(Format::decimals(number(index), 1) + u" s"_s);
    }
    /// Of a link: "480 Mbit/s", "5.0 Gbit/s".
    QString bitRate(std::size_t index) const {
        const double bits = number(index);
        return Format::leftToRight(bits >= 1e9 ? Format::decimals(bits / 1e9, 1) + u" Gbit/s"_s
                                               : Format::decimals(bits / 1e6, 0) + u" Mbit/s"_s);
    }

private:
    const Remark& m_remark;
};

/// "At most", because the disk's counters hold what others moved as well.
QString fromMemory(const Spelled& remark) {
    if (!remark.hasTest() || remark.number(0) > 1)
        return {};
    const double percents = remark.mostPercents(0);
    const QString share = Format::percent(Format::grouped(percents));
    if (remark.isWrite())
        return (percents > 0
                    ? RemarkText::tr("At most %1 of what was written reached the disk during the test.")
                    : RemarkText::tr("%1 of what was written reached the disk during the test."))
            .arg(share);
    return (percents > 0 ? RemarkText::tr("At most %1 of what was read came from the disk.")
                         : RemarkText::tr("%1 of what was read came from the disk."))
        .arg(share);
}

QString flushFailed(const Spelled& remark) {
    constexpr double last = 4095; // the kernel has no errno above
    const double error = remark.number(0);
    if (error < 1 || error > last || error != std::round(error))
        return {};
    const QString text = QString::fromStdString(OndelCore::platform::errorText(static_cast<int>(error)));
    return remark.hasTest()
               ? RemarkText::tr("What was written could not all be flushed to the disk: %1.").arg(text)
               : RemarkText::tr("The test file could not be flushed to the disk: %1.").arg(text);
}

QString speedFell(const Spelled& remark) {
    return RemarkText::tr("%1 for the first %2, then %3.")
        .arg(remark.rate(0), remark.size(2), remark.rate(1));
}

QString gotHot(const Spelled& remark) {
    if (remark.number(3) > 1)
        return {};
    return RemarkText::tr("The drive reached %1 after %2 (limit %3), and from then on the rate was %4 lower.")
        .arg(remark.celsius(0), remark.seconds(1), remark.celsius(2), remark.percent(3));
}

QString stalls(const Spelled& remark) {
    return remark.number(0) == 1 ? RemarkText::tr("One pause over 1 s: %1.").arg(remark.seconds(1))
                                 : RemarkText::tr("%1 pauses over 1 s, the longest %2.", nullptr,
                                                  plural(wholeNumber(remark.number(0))))
                                       .arg(remark.count(0), remark.seconds(1));
}

QString otherTraffic(const Spelled& remark) {
    return RemarkText::tr("Others moved %1 on the same disk during the test.").arg(remark.size(0));
}

QString slowLink(const Spelled& remark) {
    constexpr std::array kinds{"PCIe"_L1, "SATA"_L1, "USB"_L1}; // in the order of DriveLink::Kind
    const double kind = remark.number(2);
    if (kind != std::floor(kind) || kind >= static_cast<double>(kinds.size()))
        return {};
    return RemarkText::tr("The drive’s %1 link runs at %2; the drive could do %3.")
        .arg(kinds.at(static_cast<std::size_t>(kind)), remark.bitRate(0), remark.bitRate(1));
}

QString misaligned(const Spelled& remark) {
    return RemarkText::tr("The partition begins %1 into a physical block of %2.")
        .arg(remark.block(0), remark.block(1));
}

QString nearlyFull(const Spelled& remark) {
    return remark.number(0) > 1 ? QString()
                                : RemarkText::tr("Only %1 of the volume was free.").arg(remark.percent(0));
}

QString smallTest(const Spelled& remark) {
    return RemarkText::tr("The test’s %1 may fit into a cache of %2.").arg(remark.size(0), remark.size(1));
}

QString powerSaving(const Spelled& remark) {
    if (remark.number(0) == 1)
        return RemarkText::tr("The machine ran on battery.");
    if (remark.number(0) == 2)
        return RemarkText::tr("The processor was set to save power.");
    return remark.number(0) == 3
               ? RemarkText::tr("The machine ran on battery, its processor set to save power.")
               : QString();
}

QString copiesOnWrite(const Spelled& remark) {
    return remark.number(0) == 1
               ? RemarkText::tr("The file system writes changes to new places and checksums data.")
               : RemarkText::tr("The file system writes changes to new places.");
}

using Sentence = QString (*)(const Spelled&);

/// A code in words. Without `sentence`, `text` is one whole.
struct Words {
    RemarkCode code;
    Sentence sentence;
    const char* text;
    const char* advice; ///< without one there is nothing to do
};

constexpr std::array words{
    Words{RemarkCode::fromMemory, fromMemory, nullptr,
          QT_TRANSLATE_NOOP(
              "RemarkText",
              "Switch on Bypass cache. Where it is on, choose a size larger than the machine’s memory.")},
    Words{RemarkCode::flushFailed, flushFailed, nullptr,
          QT_TRANSLATE_NOOP(
              "RemarkText",
              "Look at the drive’s S.M.A.R.T. status and the system’s log before you trust it with data.")},
    Words{RemarkCode::cachedBelow, nullptr,
          QT_TRANSLATE_NOOP("RemarkText",
                            "Data went through a cache although the system was asked to bypass it."),
          QT_TRANSLATE_NOOP(
              "RemarkText",
              "Choose a size larger than the machine’s memory, or test the disk below through another file "
              "system.")},
    Words{RemarkCode::speedFell, speedFell, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "Expect the lower rate where more than that is moved at once.")},
    Words{RemarkCode::gotHot, gotHot, nullptr,
          QT_TRANSLATE_NOOP("RemarkText",
                            "Give the drive more air or a heat sink, and run again once it is cool.")},
    Words{RemarkCode::stalls, stalls, nullptr,
          QT_TRANSLATE_NOOP(
              "RemarkText",
              "Run again. If they come back, look at the drive’s S.M.A.R.T. status and its cable.")},
    Words{RemarkCode::otherTraffic, otherTraffic, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "Run again while nothing else uses the disk.")},
    Words{RemarkCode::slowLink, slowLink, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "Try another port, slot or cable.")},
    Words{RemarkCode::misaligned, misaligned, nullptr,
          QT_TRANSLATE_NOOP("RemarkText",
                            "Make the partition anew, beginning at a multiple of 1 MiB. That erases it.")},
    Words{RemarkCode::nearlyFull, nearlyFull, nullptr,
          QT_TRANSLATE_NOOP("RemarkText",
                            "Free some space: many drives and file systems slow down when full.")},
    Words{RemarkCode::smallTest, smallTest, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "Choose a larger size, and switch on Bypass cache.")},
    Words{RemarkCode::powerSaving, powerSaving, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "Run again on mains power, with power saving off.")},
    Words{
        RemarkCode::notObservable, nullptr,
        QT_TRANSLATE_NOOP("RemarkText",
                          "The disk behind this volume cannot be seen, so nothing shows what it did itself."),
        nullptr},
    Words{RemarkCode::inMemory, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "This volume keeps its files in memory; no disk was measured."),
          QT_TRANSLATE_NOOP("RemarkText", "Choose a folder on a disk.")},
    Words{RemarkCode::fileOnDisk, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "This volume is a file on another volume."),
          QT_TRANSLATE_NOOP("RemarkText", "To measure that volume itself, choose a folder on it.")},
    Words{RemarkCode::virtualDisk, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "The disk is one of a virtual machine, whose host may cache it."),
          nullptr},
    Words{RemarkCode::compresses, nullptr,
          QT_TRANSLATE_NOOP(
              "RemarkText",
              "The file system compresses. The test’s data does not, so other files may be faster."),
          nullptr},
    Words{RemarkCode::copiesOnWrite, copiesOnWrite, nullptr, nullptr},
    Words{RemarkCode::journalsData, nullptr,
          QT_TRANSLATE_NOOP("RemarkText", "The file system writes data twice, to its journal first."),
          nullptr},
    Words{
        RemarkCode::throughPortal, nullptr,
        QT_TRANSLATE_NOOP(
            "RemarkText",
            "This folder was reached through the desktop’s portal, a program that is part of the figures."),
        QT_TRANSLATE_NOOP("RemarkText", "Allow the sandbox to use the folder itself, and choose it again.")},
};

const Words& wordsOf(RemarkCode code) { return *std::ranges::find(words, code, &Words::code); }

} // namespace

QString remarkSentence(const Remark& remark) {
    if (!Spelled::isPossible(remark))
        return {};
    const Words& found = wordsOf(remark.code);
    return found.sentence != nullptr ? found.sentence(Spelled(remark)) : RemarkText::tr(found.text);
}

QString remarkAdvice(const Remark& remark) {
    const char* advice = wordsOf(remark.code).advice;
    return advice != nullptr ? RemarkText::tr(advice) : QString();
}

QString remarkWeightWord(RemarkWeight weight) {
    switch (weight) {
    case RemarkWeight::invalid:
        //: The weight of a remark: the figure is not that of the disk
        return RemarkText::tr("Invalid");
    case RemarkWeight::caution:
        //: The weight of a remark: the figure may not be what it seems
        return RemarkText::tr("Caution");
    case RemarkWeight::note:
        break;
    }
    //: The weight of a remark: something to know
    return RemarkText::tr("Note");
}

} // namespace TarnwickKit::model
