#include "OndelControls/ViewEngine.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlEngine>
#include <QQmlNetworkAccessManagerFactory>

namespace OndelControls {

namespace {

/// An answer that says no, as soon as somebody can listen to it.
class Refusal final : public QNetworkReply {
public:
    Refusal(QNetworkAccessManager::Operation operation, const QNetworkRequest& request, QObject* parent)
        : QNetworkReply(parent) {
        setOperation(operation);
        setRequest(request);
        setUrl(request.url());
        setError(ContentAccessDenied, QStringLiteral("Views load nothing over a network"));
        setFinished(true);
        QMetaObject::invokeMethod(this, &Refusal::tell, Qt::QueuedConnection);
    }

    void abort() override {}

protected:
    qint64 readData(char*, qint64) override { return -1; }

private:
    void tell() {
        Q_EMIT errorOccurred(error());
        Q_EMIT finished();
    }
};

class RefusingManager final : public QNetworkAccessManager {
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* data) override {
        if (request.url().scheme() == QStringLiteral("qrc"))
            return QNetworkAccessManager::createRequest(operation, request, data);
        return new Refusal(operation, request, this);
    }
};

class RefusingFactory final : public QQmlNetworkAccessManagerFactory {
public:
    QNetworkAccessManager* create(QObject* parent) override { return new RefusingManager(parent); }
};

} // namespace

void prepareEngine(QQmlEngine& engine) {
    static RefusingFactory factory; // stateless, and the engine does not own it
    engine.setNetworkAccessManagerFactory(&factory);
    addModules(engine);
}

void addModules(QQmlEngine& engine) { engine.addImportPath(QStringLiteral("qrc:/qt/qml")); }

} // namespace OndelControls
