#include "TarnwickKit/views/runs/FiguresPage.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

namespace TarnwickKit::views {

namespace {

QUrl address() {
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const auto* folder : {"../share/doc/tarnwick", "../../../docs"}) { // installed; build/<preset>/bin
        const QFileInfo page(programs, QString::fromLatin1(folder) + QStringLiteral("/figures.md"));
        if (page.isFile())
            return QUrl::fromLocalFile(QDir::cleanPath(page.absoluteFilePath()));
    }
    return {};
}

} // namespace

FiguresPage::FiguresPage(QObject* parent)
    : QObject(parent)
    , m_address(address()) {}

void FiguresPage::open() const { QDesktopServices::openUrl(m_address); }

} // namespace TarnwickKit::views
