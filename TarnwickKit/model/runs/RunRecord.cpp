#include "TarnwickKit/model/runs/RunRecord.h"

#include "TarnwickKit/model/runs/RunRecordFields.h"

#include <QHash>

#include <unicode/brkiter.h>

#include <algorithm>
#include <memory>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTitle = 60;
const QString separator = u" · "_s;

bool isOnNetwork(const RunRecord& run) {
    return run.kind == RunRecord::Kind::network || (run.fsType && isNetworkFilesystem(*run.fsType));
}

/// Where the text's `count`th character ends, as people see characters (UAX #29); its length if it has fewer.
qsizetype endOfCharacters(const QString& text, int count) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status))
        qFatal("ICU has no data for characters");
    const icu::UnicodeString unicode(false, reinterpret_cast<const char16_t*>(text.utf16()),
                                     static_cast<int32_t>(text.size()));
    characters->setText(unicode);
    const int32_t end = characters->next(count);
    return end == icu::BreakIterator::DONE ? text.size() : end;
}

std::size_t hashOf(double value) { return qHash(value); }
std::size_t hashOf(std::int64_t value) { return qHash(value); }
std::size_t hashOf(bool value) { return qHash(value); }
std::size_t hashOf(const QString& value) { return qHash(value); }
std::size_t hashOf(const QUuid& value) { return qHash(value); }
std::size_t hashOf(const QDateTime& value) { return qHash(value); }
std::size_t hashOf(RunRecord::Kind value) { return qHash(static_cast<int>(value)); }
std::size_t hashOf(const std::vector<RunSample>& samples) {
    std::size_t hash = samples.size();
    for (const RunSample& sample : samples)
        hash = qHashMulti(hash, sample.t, sample.v);
    return hash;
}
template <typename Value>
std::size_t hashOf(const std::optional<Value>& value) {
    return value ? hashOf(*value) : 0;
}

} // namespace

bool isNetworkFilesystem(const QString& filesystemType) {
    return std::ranges::find(networkFilesystems, filesystemType.toLower().toStdString()) !=
           networkFilesystems.end();
}

std::optional<QString> visibleText(const std::optional<QString>& text) {
    const auto isVisible = [](QChar character) {
        return !character.isSpace() && !character.isMark() && character.category() != QChar::Other_Control &&
               character.category() != QChar::Other_Format;
    };
    return text && std::ranges::any_of(*text, isVisible) ? text : std::nullopt;
}

QString RunRecord::title() const {
    if (const auto own = visibleText(customTitle))
        return *own;
    return visibleText(volumeName).value_or(u"Volume"_s);
}

QString RunRecord::screenshotTitle() const {
    if (const auto own = visibleText(customTitle))
        return *own;
    if (isOnNetwork(*this)) {
        const auto told = visibleText(deviceProtocol);
        const auto protocol = told ? told : DriveInfo::networkProtocol(fsType);
        return protocol.value_or(u"Network"_s) + u" Server"_s;
    }
    return kind == Kind::internalDrive ? title() : visibleText(deviceModel).value_or(u"External Drive"_s);
}

QString RunRecord::screenshotSubtitle() const {
    if (isOnNetwork(*this))
        return u"Network volume"_s;
    if (kind == Kind::internalDrive)
        return u"Internal"_s + (visibleText(fsType) ? separator + fsType->toUpper() : QString());
    return u"External"_s + (visibleText(deviceProtocol) ? separator + *deviceProtocol : QString());
}

std::optional<QString> RunRecord::customTitleFrom(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    return trimmed.left(endOfCharacters(trimmed, longestTitle));
}

} // namespace TarnwickKit::model

std::size_t std::hash<TarnwickKit::model::RunRecord>::operator()(
    const TarnwickKit::model::RunRecord& run) const noexcept {
    std::size_t all = 0;
    TarnwickKit::model::visitFields(run, [&](std::string_view, const auto& field) {
        all = qHashMulti(all, TarnwickKit::model::hashOf(field));
    });
    return all;
}
