#include "tests/TarnwickKit/views/Pictures.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

/// The text format of Qt's own class, also where a subclass hides the property.
int formatOf(const QObject& item, const char* className) {
    const QMetaObject* type = item.metaObject();
    while (qstrcmp(type->className(), className) != 0)
        type = type->superClass();
    return type->property(type->indexOfProperty("textFormat")).read(&item).toInt();
}

/// The engine's error about a piece of QML.
QString refusal(const QByteArray& qml) {
    QQmlEngine engine;
    OndelControls::prepareEngine(engine);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport OndelControls\n" + qml, QUrl());
    return component.errorString();
}

TEST(PlainText, CannotBeMadeToReadMarkup) {
    for (const auto& [item, className] :
         {std::pair("PlainText", "QQuickText"), std::pair("PlainTextArea", "QQuickTextEdit")}) {
        const QByteArray name = item;
        for (const char* way : {" { textFormat: Text.RichText }", " { Binding on textFormat { value: 1 } }"})
            EXPECT_TRUE(refusal(name + way).contains("read-only")) << refusal(name + way).toStdString();
        test::Stage stage(name + " { text: '<b>bold</b>'; function read(): bool"
                                 " { try { textFormat = Text.RichText; return false; }"
                                 "   catch (error) { return true; } } }");
        EXPECT_FALSE(stage.root().setProperty("textFormat", 1)) << item;
        bool refused = false;
        QMetaObject::invokeMethod(&stage.root(), "read", Q_RETURN_ARG(bool, refused));
        EXPECT_TRUE(refused) << item;
        EXPECT_EQ(formatOf(stage.root(), className), 0) << item;
    }
}

/// Qt's own items that load resources named in a text are blocked too.
TEST(ViewEngine, ReachesNoNetwork) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    int connections = 0;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        ++connections;
        server.nextPendingConnection()->abort();
    });
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(server.serverPort());
    QByteArray qml = R"(Item { id: all; width: 9; height: 9
        property int answered: 0
        function ask(): void {
            const request = new XMLHttpRequest();
            request.onreadystatechange = () => { if (request.readyState === XMLHttpRequest.DONE) ++all.answered; };
            request.open('GET', 'ADDRESS/asked');
            request.send();
        }
        Text { textFormat: Text.RichText; text: '<img src="ADDRESS/rich.png">' }
        Text { text: '<img src="ADDRESS/guessed.png">' }
        Repeater { model: ['ADDRESS/a.png', 'data:image/png;base64,AAAA']
            Image { required property string modelData; source: modelData
                onStatusChanged: if (status === Image.Error) ++all.answered } }
        Component.onCompleted: ask() })";
    test::Stage stage(qml.replace("ADDRESS", address));
    while (stage.root().property("answered").toInt() < 3)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(connections, 0);
}

} // namespace
