#pragma once

#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/window/ModelObserver.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <QVariantList>

namespace TarnwickKit::views {

/// One entry of the volume menu, for QML.
struct VolumeItem {
    Q_GADGET
    QML_VALUE_TYPE(volumeItem)
    Q_PROPERTY(QUrl url MEMBER url CONSTANT)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)

public:
    QUrl url;
    QString label;
    QString symbol;

    bool operator==(const VolumeItem&) const = default;
};

/// The facts of the model's target, as texts for the window.
class TargetFacts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        TarnwickKit::model::AnalyzerModel* analyzer READ analyzer WRITE setAnalyzer NOTIFY analyzerChanged)

    /// The folder under test; "" while none is chosen.
    Q_PROPERTY(QString folder READ folder NOTIFY folderChanged)
    /// The volume's name and the line under it; "" without a volume.
    Q_PROPERTY(QString volumeName READ volumeName NOTIFY volumeChanged)
    Q_PROPERTY(QString volumeLine READ volumeLine NOTIFY volumeChanged)
    /// How it is attached: an argument of Palette::badgeStart.
    Q_PROPERTY(int volumeKind READ volumeKind NOTIFY volumeChanged)

    Q_PROPERTY(bool hasCapabilities READ hasCapabilities NOTIFY volumeChanged)
    Q_PROPERTY(QList<TarnwickKit::views::InfoItem> capabilities READ capabilities NOTIFY volumeChanged)
    /// The names of the features that the file system has.
    Q_PROPERTY(QStringList features READ features NOTIFY volumeChanged)
    /// Names the features of which is not known whether the file system has them; "" when all are known.
    Q_PROPERTY(QString featuresNote READ featuresNote NOTIFY volumeChanged)

    Q_PROPERTY(bool hasHealth READ hasHealth NOTIFY healthChanged)
    Q_PROPERTY(bool isFailing READ isFailing NOTIFY healthChanged)
    Q_PROPERTY(QList<TarnwickKit::views::InfoItem> health READ health NOTIFY healthChanged)
    /// Why the drive's health is not, or not completely, known; "" when it is, or without a drive.
    Q_PROPERTY(QString healthNote READ healthNote NOTIFY healthChanged)
public:
    using QObject::QObject;

    model::AnalyzerModel* analyzer() const { return m_analyzer; }
    void setAnalyzer(model::AnalyzerModel* analyzer);
    Q_SIGNAL void analyzerChanged();

    QString folder() const;
    Q_SIGNAL void folderChanged();
    /// Shows the folder in the file manager.
    Q_INVOKABLE void showFolder();
    /// What is to be said of the outcome, if it failed.
    Q_SIGNAL void told(const QString& sentence);

    QString volumeName() const;
    QString volumeLine() const;
    int volumeKind() const;
    bool hasCapabilities() const { return m_analyzer && m_analyzer->capabilities(); }
    QList<InfoItem> capabilities() const;
    QStringList features() const;
    QStringList unknownFeatures() const;
    QString featuresNote() const;
    Q_SIGNAL void volumeChanged();

    bool hasHealth() const;
    bool isFailing() const;
    QList<InfoItem> health() const;
    QString healthNote() const;
    Q_SIGNAL void healthChanged();

    /// The mounted volumes (VolumeItem). Blocks for up to half a second.
    Q_INVOKABLE static QVariantList mountedVolumes();

private:
    ModelObserver m_analyzer;
};

} // namespace TarnwickKit::views
