#include "OndelAppSupport/updates/UpdateError.h"

#include <QCoreApplication>

#include <array>

namespace OndelAppSupport::updates {

namespace {

struct Text {
    const char* caseName;
    const char* sentence; ///< %1: the product
};

/// In the order of UpdateError::Cause.
constexpr std::array<Text, 10> texts{{
    {"feedUnreachable",
     QT_TRANSLATE_NOOP(
         "Updates", "The update server couldn’t be reached. Check the internet connection and try again.")},
    {"feedUnreadable", QT_TRANSLATE_NOOP("Updates", "The update server’s answer couldn’t be read.")},
    {"feedNotSecure",
     QT_TRANSLATE_NOOP(
         "Updates",
         "This build’s update server isn’t reached over a secure connection, so nothing was asked of it.")},
    {"offerIncomplete", QT_TRANSLATE_NOOP("Updates", "There is a new version of %1, but the update server "
                                                     "doesn’t say what is needed to load it safely.")},
    {"packageUnreachable",
     QT_TRANSLATE_NOOP("Updates",
                       "The update couldn’t be downloaded. Check the internet connection and try again.")},
    {"wrongLength",
     QT_TRANSLATE_NOOP("Updates",
                       "The download isn’t as long as the update should be, so it was thrown away.")},
    {"wrongSignature",
     QT_TRANSLATE_NOOP("Updates", "The download isn’t signed by the maker of %1, so it was thrown away.")},
    {"noRoom",
     QT_TRANSLATE_NOOP("Updates", "There isn’t enough room for the update in the temporary folder.")},
    {"notWritable", QT_TRANSLATE_NOOP("Updates", "The update couldn’t be written to the temporary folder.")},
    {"notOpened", QT_TRANSLATE_NOOP("Updates", "No program on this system opens the update’s package.")},
}};

const Text& textOf(UpdateError::Cause cause) { return texts.at(static_cast<std::size_t>(cause)); }

} // namespace

QString UpdateError::description(const QString& name) const {
    const QString sentence = QCoreApplication::translate("Updates", textOf(m_cause).sentence);
    return sentence.contains(QLatin1String("%1")) ? sentence.arg(name) : sentence;
}

const char* UpdateError::what() const noexcept { return textOf(m_cause).caseName; }

OndelCore::ErrorName UpdateError::errorName() const noexcept {
    return {"UpdateError", textOf(m_cause).caseName, "OndelAppSupport.UpdateError",
            static_cast<int>(m_cause)};
}

} // namespace OndelAppSupport::updates
