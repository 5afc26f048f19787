#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

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
/// beside the releases are left out. Fails: absent when it is no such feed, is cut short, or declares a
/// document type: with none there are no entities that could grow.
std::optional<QList<Offer>> readAppcast(const QByteArray& feed);

/// The newest offer for a system: `platforms` are its names, `systemVersion` is what an offer's least version
/// is compared with. An offer that names no platform is for none of ours.
std::optional<Offer> newestOffer(const QList<Offer>& offers, const QStringList& platforms,
                                 const QString& systemVersion);

} // namespace OndelAppSupport::updates
