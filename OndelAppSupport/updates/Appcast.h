#pragma once

#include "OndelAppSupport/updates/HttpsGet.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// A package that a feed offers.
struct Offer {
    QString version;              ///< the build's number: what is compared
    QString shortVersion;         ///< as people read it
    QString minimumSystemVersion; ///< empty: any
    QString notes;                ///< plain text
    QUrl notesLink;               ///< instead of notes
    QUrl url;
    qint64 length = 0;    ///< bytes
    QString platform;     ///< empty where the feed names none
    QByteArray signature; ///< raw; empty where the feed has none

    /// Whether the package can be downloaded and verified.
    bool isComplete() const;
};

/// Reads an RSS feed of releases: per item version, shortVersionString, minimumSystemVersion, description
/// or releaseNotesLink, and one offer for each enclosure (url, length, os, edSignature). Items with a channel
/// are skipped. Fails: absent when it is not such a feed, is truncated, declares a document type (which rules
/// out entity expansion), has more attributes or deeper nesting than feeds have (the reader's time grows with
/// their squares), or when a stop is requested.
std::optional<QList<Offer>> readAppcast(const QByteArray& feed, const std::stop_token& stop = {});

/// The newest complete offer that is newer than `currentVersion` and fits the system: `platforms` are the
/// system's names, `systemVersion` is compared with an offer's minimum. An offer without a platform does not
/// fit. If all newer offers are incomplete, the newest of them.
std::optional<Offer> newestOffer(const QList<Offer>& offers, const QStringList& platforms,
                                 const QString& systemVersion, const QString& currentVersion);

/// What a check asks for.
struct Search {
    QUrl feed;
    QString currentVersion;
    QStringList platforms;
    QString systemVersion;
    https::Connection connection;
};

/// Downloads the feed and finds an update. Absent: nothing newer for this system. Notes behind a link are
/// downloaded too; if that fails, the offer has none. Threads: blocks, not for the main thread. Fails: throws
/// UpdateError, or https::Stopped.
std::optional<Offer> findUpdate(const Search& search, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
