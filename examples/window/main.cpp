// A window of its own with a live chart of Ondel Tarnwick's beside its own button and text.
#include <QFuture>
#include <QGuiApplication>
#include <QPointF>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QTimer>

#include <OndelCore/benchmark/BenchmarkEngine.h>
#include <TarnwickKit/views/TarnwickViews.h>

using namespace OndelCore::benchmark;

/// Measures a folder, and gathers the write test's points for the chart.
class Meter : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QPointF> points MEMBER m_points NOTIFY changed)
    Q_PROPERTY(bool running MEMBER m_running NOTIFY changed)

public:
    explicit Meter(std::string folder)
        : m_folder(std::move(folder)) {}

    Q_INVOKABLE void start() {
        m_points.clear();
        m_running = true;
        Q_EMIT changed();
        const BenchmarkPlan plan{.tests = {BenchmarkTest::sequentialWrite},
                                 .size = BenchmarkSize::fixed(1073741824)};
        const auto hear = [this](const BenchmarkProgress& now) { // on the thread that measures
            if (now.instantBytesPerSecond > 0)
                QMetaObject::invokeMethod(
                    this, [this, now] { add({now.elapsed, now.instantBytesPerSecond / 1e6}); });
        };
        BenchmarkEngine()
            .run(plan, m_folder, hear, m_stop.get_token())
            .then(this, [this](QFuture<BenchmarkResult>) {
                m_running = false;
                Q_EMIT changed();
            });
    }
    Q_SIGNAL void changed();

private:
    void add(QPointF point) {
        m_points.append(point);
        Q_EMIT changed();
    }

    std::string m_folder;
    QList<QPointF> m_points;
    bool m_running = false;
    std::stop_source m_stop;
};

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    Meter meter(argc > 1 ? argv[1] : ".");
    QQmlApplicationEngine engine;
    TarnwickKit::views::addTo(engine);
    engine.rootContext()->setContextProperty("meter", &meter);
    engine.loadData(R"(
        import QtQuick
        import QtQuick.Controls.Basic
        import TarnwickKit.views
        ApplicationWindow {
            width: 640; height: 360; visible: true; title: "Live chart"
            header: Button { text: meter.running ? "Measuring …" : "Measure"; enabled: !meter.running; onClicked: meter.start() }
            TarnwickChart { anchors.fill: parent; anchors.margins: 16; write: meter.points; live: meter.running }
        })");
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}

#include "main.moc"
