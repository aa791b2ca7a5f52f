#include "olModelFiles.h"

#include "olImportDialog.h"

#include "Exchange/olExportScene.h"
#include "Exchange/olModelFormat.h"
#include "Model/olScene.h"
#include "State/olHostState.h"

#include <TDocStd_Document.hxx>

#include <QAction>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

#include <algorithm>

namespace
{

bool isFlawless(const olImportReport &report)
{
    return report.error.isEmpty() && report.remarks.isEmpty() && !report.isCancelled;
}

} // namespace

olModelFiles::olModelFiles(QWidget &window, olScene &scene) : m_window(window), m_scene(scene), m_importer(scene)
{
    m_window.setAcceptDrops(true);
    m_window.installEventFilter(this);
    connect(&m_importer, &olImporter::finished, this, &olModelFiles::finish);
    connect(&m_importer, &olImporter::progressed, this, [this](int import, int percent) {
        if (olImportDialog *dialog = m_dialogs.value(import))
            dialog->setPercent(percent);
    });
}

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
    QStringList files;
    const QList<QUrl> urls = drop->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    if (files.isEmpty())
        return true;
    drop->acceptProposedAction();
    if (isDrop)
        open(files);
    return true;
}

void olModelFiles::chooseImport()
{
    open(QFileDialog::getOpenFileNames(&m_window, tr("Import"), QString(), olModelFormat::filter(false)));
}

void olModelFiles::chooseExport()
{
    const QString file = QFileDialog::getSaveFileName(&m_window, tr("Export"), QString(), olModelFormat::filter(true));
    if (file.isEmpty())
        return;
    const olExportResult result = olExportScene(m_scene.document(), file);
    const QStringList texts = QStringList(result.remarks) << result.error;
    const QString text = texts.join(QLatin1Char('\n')).trimmed();
    if (!text.isEmpty())
        tell(text);
}

void olModelFiles::open(const QStringList &files)
{
    std::vector<olImportJob> jobs;
    for (const QString &file : files)
        jobs.push_back(olImportJob::of(file));
    if (jobs.empty())
        return;
    if (!olHostState::the().importOptionsShown) {
        start(jobs, addDialog(jobs));
        return;
    }
    auto *dialog = new olImportDialog(jobs, &m_window, m_lockReason);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &olImportDialog::confirmed, this, [this, dialog, jobs] {
        std::vector<olImportJob> asked;
        for (const olImportJob &job : jobs)
            asked.push_back(dialog->asked(job));
        const olImportFineness::Values kept = dialog->kept();
        start(asked, dialog);
        const QString fault = kept.empty() ? QString() : m_keep(kept);
        if (!fault.isEmpty())
            tell(fault);
    });
    dialog->show();
}

void olModelFiles::openAtOnce(const QString &file)
{
    const std::vector<olImportJob> jobs{olImportJob::of(file)};
    start(jobs, addDialog(jobs));
}

olImportDialog *olModelFiles::addDialog(const std::vector<olImportJob> &jobs)
{
    if (!olHostState::the().fileIOProgressShown)
        return nullptr;
    auto *dialog = new olImportDialog(jobs, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->showReading();
    dialog->show();
    return dialog;
}

void olModelFiles::start(const std::vector<olImportJob> &jobs, olImportDialog *dialog)
{
    const int import = m_importer.start(jobs);
    if (!dialog)
        return;
    if (!olHostState::the().fileIOProgressShown) {
        dialog->accept();
        return;
    }
    m_dialogs.insert(import, dialog);
    connect(dialog, &olImportDialog::cancelled, &m_importer, [this, import] { m_importer.cancel(import); });
}

void olModelFiles::finish(int import, const QVector<olImportReport> &reports)
{
    QStringList texts;
    bool isGood = false;
    for (const olImportReport &report : reports) {
        if (report.isCancelled)
            continue;
        isGood = isGood || report.error.isEmpty();
        if (report.error.isEmpty())
            m_opened << report.file;
        texts << (report.error.isEmpty() ? tr("%1 was read.").arg(QFileInfo(report.file).fileName()) : report.error);
        texts << report.remarks;
    }
    if (isGood)
        emit imported();
    const bool closes = QSettings().value(QStringLiteral("importDialog/closeOnSuccess"), true).toBool();
    const bool isQuiet = texts.isEmpty() || (closes && std::all_of(reports.begin(), reports.end(), isFlawless));
    olImportDialog *dialog = m_dialogs.take(import);
    if (dialog && isQuiet)
        dialog->accept();
    else if (dialog)
        dialog->showOutcome(texts.join(QLatin1Char('\n')));
    else if (!isQuiet)
        tell(texts.join(QLatin1Char('\n')));
}

void olModelFiles::tell(const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Information, tr("ORLO"), text, QMessageBox::Ok, &m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}
