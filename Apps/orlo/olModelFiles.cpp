#include "olModelFiles.h"

#include "Embedded/olHostState.h"
#include "Viewport/olExportScene.h"
#include "Viewport/olModelFormat.h"
#include "Viewport/olScene.h"

#include <TDocStd_Document.hxx>

#include <QAction>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QSettings>
#include <QUrl>

olModelFiles::olModelFiles(QWidget &window, olScene &scene) : m_window(window), m_scene(scene), m_importer(scene)
{
    m_window.setAcceptDrops(true);
    m_window.installEventFilter(this);
    connect(&m_importer, &olImporter::started, this, &olModelFiles::showProgress);
    connect(&m_importer, &olImporter::finished, this, &olModelFiles::finish);
}

olModelFiles::~olModelFiles() { delete m_progress; }

void olModelFiles::addTo(QMenu &menu)
{
    QAction *import = menu.addAction(tr("&Import..."));
    import->setShortcut(QKeySequence::Open);
    connect(import, &QAction::triggered, this, &olModelFiles::chooseImport);
    QAction *write = menu.addAction(tr("&Export..."));
    write->setShortcut(QKeySequence::SaveAs);
    connect(write, &QAction::triggered, this, &olModelFiles::chooseExport);
}

bool olModelFiles::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter)
        return QObject::eventFilter(watched, event);
    auto *drop = static_cast<QDropEvent *>(event);
    const QList<QUrl> urls = drop->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (!url.isLocalFile())
            continue;
        drop->acceptProposedAction();
        if (isDrop)
            open(url.toLocalFile());
    }
    return true;
}

void olModelFiles::chooseImport()
{
    const QStringList files =
        QFileDialog::getOpenFileNames(&m_window, tr("Import"), QString(), olModelFormat::filter());
    for (const QString &file : files)
        open(file);
}

void olModelFiles::chooseExport()
{
    const QString file = QFileDialog::getSaveFileName(&m_window, tr("Export"), QString(), olModelFormat::filter());
    if (file.isEmpty())
        return;
    const olExportResult result = olExportScene(m_scene.document(), file);
    const QStringList texts = QStringList(result.remarks) << result.error;
    const QString text = texts.join(QLatin1Char('\n')).trimmed();
    if (!text.isEmpty())
        tell(text);
}

void olModelFiles::showProgress(const QString &file)
{
    if (!olHostState::the().fileIOProgressShown)
        return;
    delete m_progress;
    m_progress = new QProgressDialog(tr("Reading %1").arg(QFileInfo(file).fileName()), tr("Cancel"), 0, 100, &m_window);
    m_progress->setWindowTitle(tr("Import"));
    m_progress->setAutoClose(false);
    m_progress->setAutoReset(false);
    connect(m_progress, &QProgressDialog::canceled, &m_importer, &olImporter::cancel);
    connect(&m_importer, &olImporter::progressed, m_progress, &QProgressDialog::setValue);
}

void olModelFiles::finish(const QString &file, const QString &error, bool isCancelled, const QStringList &remarks)
{
    delete m_progress;
    if (isCancelled)
        return;
    if (!error.isEmpty()) {
        tell(error);
        return;
    }
    emit imported(file);
    const bool closes = QSettings().value(QStringLiteral("importDialog/closeOnSuccess"), true).toBool();
    if (!remarks.isEmpty() || !closes)
        tell(tr("%1 was read.").arg(QFileInfo(file).fileName()) + QLatin1Char('\n') + remarks.join(QLatin1Char('\n')));
}

void olModelFiles::tell(const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Information, tr("ORLO"), text, QMessageBox::Ok, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}
