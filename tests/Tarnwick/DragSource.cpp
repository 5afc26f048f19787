// A window to drag URLs from, once, until it is killed: drag-source URL...
// It says "ready" when it can be seen, "accepted" when the pointer is over a window that would take them, and
// "taken" when that has done so.

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

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

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    Source source;
    source.setTitle(QStringLiteral("Drag from here"));
    source.setGeometry(1200, 0, 100, 100);
    source.show();
    return QGuiApplication::exec();
}
