#include "TarnwickKit/views/sharing/RunExports.h"

#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunExport.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunText.h"
#include "TarnwickKit/views/sharing/FileWriting.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/window/Dialogs.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <string>
#include <system_error>

namespace TarnwickKit::views {

namespace fs = std::filesystem;

namespace {

struct RunExportsText {
    Q_DECLARE_TR_FUNCTIONS(RunExportsText)
};

/// The name of a file with runs, without its ending.
QString exportTitle(const ComparedRuns& runs) {
    return runs.count() == 1
               ? QStringLiteral("Ondel Tarnwick — ") + runs.runs.front().screenshotTitle()
               : RunExportsText::tr("Ondel Tarnwick — %n runs", nullptr, static_cast<int>(runs.count()));
}

} // namespace

RunExports::RunExports(QObject* parent)
    : QObject(parent) {}

RunExports::~RunExports() = default;

void RunExports::copyText(const ComparedRuns& runs) {
    copy(model::runTexts(runs.runs), RunExportsText::tr("Text copied"));
}

void RunExports::copyMarkdown(const ComparedRuns& runs) {
    copy(model::markdownTable(runs.runs), RunExportsText::tr("Table copied"));
}

void RunExports::copy(const QString& text, const QString& outcome) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setText(text);
    Q_EMIT told(clipboard->ownsClipboard() ? outcome : RunExportsText::tr("The text couldn't be copied."));
}

void RunExports::saveRuns(const ComparedRuns& runs, QQuickItem* item) {
    if (runs.count() != 1)
        return save(runs, ".json", RunExportsText::tr("Lists of runs"), model::jsonList(runs.runs), item);
    const std::string ending = "." + std::string(model::TarnwickFile::runExtension);
    if (const auto content = model::encodeRun(runs.runs.front()))
        save(runs, ending, RunExportsText::tr("Tarnwick runs"), *content, item);
}

void RunExports::saveCsv(const ComparedRuns& runs, QQuickItem* item) {
    save(runs, ".csv", RunExportsText::tr("CSV tables"), model::csvTable(runs.runs), item);
}

void RunExports::save(const ComparedRuns& runs, std::string_view ending, const QString& kind,
                      const QByteArray& content, QQuickItem* item) {
    if (!m_dialogs)
        m_dialogs = std::make_unique<Dialogs>();
    m_dialogs->setWindow(item->window());
    const auto write = [this, content](const fs::path& target) {
        writeLater(this, target, content, [this, target](const std::error_code& error) {
            Q_EMIT told(
                error
                    ? RunExportsText::tr("The file couldn't be saved: %1")
                          .arg(QString::fromStdString(error.message()))
                    : RunExportsText::tr("Saved as “%1”").arg(QFile::decodeName(target.filename().c_str())));
        });
    };
    const std::string name = ReportImage::fileName(exportTitle(runs), ending);
    m_dialogs->askForExportFile(QString::fromStdString(name), kind, write);
}

} // namespace TarnwickKit::views
