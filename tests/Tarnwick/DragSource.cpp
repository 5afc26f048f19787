// A window to drag URLs from, once, until it is killed: drag-source URL...
// It prints "ready" when it is visible, "accepted" when the pointer is over a window that accepts the URLs,
// and "taken" after the drop. It also prints the launch feedback messages of programs.

#include <QAbstractNativeEventFilter>
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QRasterWindow>
#include <QUrl>

#include <xcb/xcb.h>

#include <cstdio>
#include <string>
#include <utility>

namespace {

void say(const char* word) {
    std::puts(word);
    std::fflush(stdout);
}

class Source : public QRasterWindow {
protected:
    void paintEvent(QPaintEvent*) override { say("ready"); }

    void mouseMoveEvent(QMouseEvent*) override {
        if (m_isDragging)
            return;
        m_isDragging = true;
        QList<QUrl> urls;
        for (const QString& word : QCoreApplication::arguments().mid(1))
            urls.append(QUrl(word));
        auto* data = new QMimeData;
        data->setUrls(urls);
        auto* drag = new QDrag(this); // the toolkit deletes it when the target has what it wanted
        drag->setMimeData(data);
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            if (action == Qt::CopyAction)
                say("accepted");
        });
        connect(drag, &QObject::destroyed, this, [] { say("taken"); });
        drag->exec(Qt::CopyAction);
    }

private:
    bool m_isDragging = false;
};

/// A message arrives in pieces, the last one with a NUL.
class Starts : public QAbstractNativeEventFilter {
public:
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto* event = static_cast<const xcb_client_message_event_t*>(message);
        if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE || event->format != 8)
            return false;
        m_told.append(std::begin(event->data.data8), std::end(event->data.data8));
        if (m_told.find('\0') != std::string::npos)
            say(std::exchange(m_told, {}).c_str());
        return false;
    }

private:
    std::string m_told;
};

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    Starts starts;
    application.installNativeEventFilter(&starts);
    Source source;
    source.setTitle(QStringLiteral("Drag from here"));
    source.setGeometry(1200, 0, 100, 100);
    source.show();
    return QGuiApplication::exec();
}
