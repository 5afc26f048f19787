#include "TarnwickKit/views/FolderChooser.h"

#include <QDir>
#include <QWindow>

namespace TarnwickKit::views {

FolderChooser::~FolderChooser() { delete m_dialog; }

void FolderChooser::open(QQuickWindow* window, const QString& folder) {
    if (m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    m_dialog = new QFileDialog;
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setFileMode(QFileDialog::Directory);
    m_dialog->setOption(QFileDialog::ShowDirsOnly);
    m_dialog->setAcceptMode(QFileDialog::AcceptOpen);
    m_dialog->setLabelText(QFileDialog::Accept, tr("Select"));
    m_dialog->setWindowTitle(tr(
        "Choose a folder on the volume to test (a temporary working folder is written there and removed)."));
    if (!folder.isEmpty())
        m_dialog->setDirectory(folder == QDir::rootPath() ? QDir::homePath() : folder);
    connect(m_dialog, &QFileDialog::accepted, this, [this] {
        const QList<QUrl> urls = m_dialog->selectedUrls();
        if (!urls.isEmpty())
            Q_EMIT chosen(urls.constFirst());
    });
    m_dialog->winId(); // makes the window that gets the parent
    m_dialog->windowHandle()->setTransientParent(window);
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->show();
}

} // namespace TarnwickKit::views
