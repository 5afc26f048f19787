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
    QString platform;     ///< empty where the feed says none
    QByteArray signature; ///< raw; empty where the feed has none

    /// Whether enough is known to load the package and to prove whose it is.
    bool isComplete() const;
};

/// Reads an RSS feed of releases: per item version, shortVersionString, minimumSystemVersion, description
/// or releaseNotesLink, and one offer for each enclosure (url, length, os, edSignature). Items of a channel
/// beside the releases are left out. Fails: absent when it is no such feed, is cut short, declares a document
/// type (with none there are no entities that could grow), has elements with more attributes or deeper in one
/// another than a feed has (the reader's time grows with their squares), or when a stop is requested.
std::optional<QList<Offer>> readAppcast(const QByteArray& feed, const std::stop_token& stop = {});

/// The newest complete offer for a system that is newer than `currentVersion`: `platforms` are the system's
/// names, `systemVersion` is what an offer's least version is compared with. An offer that names no platform
/// is for none of ours. Where all newer ones are incomplete, the newest of those.
std::optional<Offer> newestOffer(const QList<Offer>& offers, const QStringList& platforms,
                                 const QString& systemVersion, const QString& currentVersion);

/// What is looked for, and where.
struct Search {
    QUrl feed;
    QString currentVersion;
    QStringList platforms;
    QString systemVersion;
    https::Connection connection;
};

/// Asks the feed. Absent: nothing newer for this system. Notes that stand elsewhere are loaded too; where
/// that fails the offer has none. Threads: blocks, not for the main thread. Fails: throws UpdateError, or
/// https::Stopped.
std::optional<Offer> findUpdate(const Search& search, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
