#include "olModelFiles.h"

#include "olImportChoice.h"
#include "olImportDialog.h"
#include "olRecentModels.h"

#include "Exchange/olExportScene.h"
#include "Exchange/olModelFormat.h"
#include "Model/olScene.h"
#include "State/olHostState.h"

#include <TDocStd_Document.hxx>

#include <QAction>
#include <QApplication>
#include <QDir>
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

using Success = olImportDialog::Success;

/// The files went as well as the worst of them.
Success successOf(const QVector<olImportReport> &reports)
{
    Success success = Success::Good;
    for (const olImportReport &report : reports) {
        if (!report.outcome.isOk())
            return Success::Failed;
        if (!report.remarks.isEmpty() || report.isCancelled)
            success = Success::WithRemarks;
    }
    return success;
}

QString nameOf(const QString &file) { return QFileInfo(file).fileName(); }

} // namespace

olModelFiles::olModelFiles(QWidget &window, olScene &scene)
    : m_window(window), m_scene(scene), m_importer(scene), m_recent(new olRecentModels(&window))
{
    m_window.setAcceptDrops(true);
    m_window.installEventFilter(this);
    connect(m_recent, &olRecentModels::chosen, this, &olModelFiles::openAgain);
    connect(&m_importer, &olImporter::finished, this, &olModelFiles::finish);
    connect(&m_importer, &olImporter::progressed, this, [this](int import, int percent) {
        if (olImportDialog *dialog = m_running.value(import).dialog)
            dialog->setPercent(percent);
    });
}

void olModelFiles::addTo(QMenu &menu)
{
    QAction *import = menu.addAction(tr("&Import..."));
    import->setShortcut(QKeySequence::Open);
    connect(import, &QAction::triggered, this, &olModelFiles::chooseImport);
    menu.addMenu(m_recent);
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
    if (files.isEmpty() || !(drop->possibleActions() & Qt::CopyAction))
        return true;
    // Whoever proposes to move would delete the file behind us.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (isDrop)
        open(files);
    return true;
}

void olModelFiles::chooseImport()
{
    const QString folder = m_openFiles.isEmpty() ? QString() : QFileInfo(m_openFiles.first()).path();
    open(QFileDialog::getOpenFileNames(&m_window, tr("Import"), folder, olModelFormat::filter(false)));
}

void olModelFiles::chooseExport()
{
    const QString file = QFileDialog::getSaveFileName(&m_window, tr("Export"), QString(), olModelFormat::filter(true));
    if (file.isEmpty())
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const olResult<QStringList> remarks = olExportScene(m_scene.document(), file);
    QApplication::restoreOverrideCursor();
    if (!remarks.isOk()) {
        emit told(tr("The export failed."));
        return report(true, tr("The export failed."), remarks.error());
    }
    emit told(tr("%1 was written.").arg(QDir::toNativeSeparators(file)));
    if (!remarks->isEmpty())
        report(false, tr("%1 was written, with remarks.").arg(nameOf(file)), remarks->join(QLatin1Char('\n')));
}

void olModelFiles::openAgain(const QString &file)
{
    if (QFileInfo::exists(file))
        return open({file});
    m_recent->remove(file);
    report(true, tr("The import failed."), tr("Cannot read %1: there is no such file any more.").arg(file));
}

void olModelFiles::open(const QStringList &files)
{
    std::vector<olImportJob> jobs;
    for (const QString &file : files)
        jobs.push_back(olImportJob::of(file));
    if (jobs.empty())
        return;
    if (!olHostState::the().importOptionsShown)
        return start(jobs, olImportChoice::remembered(), addDialog(jobs));
    auto *dialog = new olImportDialog(jobs, !m_scene.isEmpty(), &m_window, m_lockReason);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &olImportDialog::confirmed, this, [this, dialog, jobs] {
        std::vector<olImportJob> asked;
        for (const olImportJob &job : jobs)
            asked.push_back(dialog->asked(job));
        const olImportFineness::Values kept = dialog->kept();
        dialog->choice().remember();
        start(asked, dialog->choice(), dialog);
        const QString fault = kept.empty() ? QString() : m_keep(kept);
        if (!fault.isEmpty())
            report(true, tr("The settings could not be kept."), fault);
    });
    dialog->show();
}

void olModelFiles::openAtOnce(const QString &file, const olImportChoice &choice)
{
    const std::vector<olImportJob> jobs{olImportJob::of(file)};
    start(jobs, choice, addDialog(jobs));
}

void olModelFiles::forgetOpenFiles() { takeOver({}, false); }

olImportDialog *olModelFiles::addDialog(const std::vector<olImportJob> &jobs)
{
    if (!olHostState::the().fileIOProgressShown)
        return nullptr;
    auto *dialog = new olImportDialog(jobs, false, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->showReading();
    dialog->show();
    return dialog;
}

void olModelFiles::start(std::vector<olImportJob> jobs, const olImportChoice &choice, olImportDialog *dialog)
{
    for (olImportJob &job : jobs)
        choice.applyTo(job);
    const int import =
        m_importer.start(jobs, choice.addsToScene ? olImporter::Into::OpenScene : olImporter::Into::NewScene);
    const bool isFollowed = dialog && olHostState::the().fileIOProgressShown;
    m_running.insert(import, {isFollowed ? dialog : nullptr, choice.addsToScene});
    if (isFollowed)
        connect(dialog, &olImportDialog::cancelled, &m_importer, [this, import] { m_importer.cancel(import); });
    else if (dialog)
        dialog->accept();
}

void olModelFiles::finish(int import, const QVector<olImportReport> &reports)
{
    const Running running = m_running.take(import);
    QStringList texts;
    QStringList good;
    for (const olImportReport &report : reports) {
        if (report.isCancelled)
            continue;
        if (report.outcome.isOk())
            good << report.file;
        texts << (report.outcome.isOk() ? tr("%1 was read.").arg(nameOf(report.file)) : report.outcome.error());
        texts << report.remarks;
    }
    if (!good.isEmpty()) {
        takeOver(good, running.isAdded);
        emit imported();
    }
    const Success success = successOf(reports);
    if (success == Success::Failed)
        emit told(tr("The import failed."));
    else if (!good.isEmpty())
        emit told(good.size() == 1 ? tr("%1 was read.").arg(nameOf(good.first()))
                                   : tr("%n files were read.", nullptr, good.size()));
    const bool closes = QSettings().value(QStringLiteral("importDialog/closeOnSuccess"), true).toBool();
    const bool isQuiet = texts.isEmpty() || (closes && success == Success::Good);
    const QString text = texts.join(QLatin1Char('\n'));
    if (running.dialog && isQuiet)
        running.dialog->accept();
    else if (running.dialog)
        running.dialog->showOutcome(success, text);
    else if (!isQuiet)
        report(success == Success::Failed,
               success == Success::Failed ? tr("The import failed.") : tr("The import is done, with remarks."), text);
}

void olModelFiles::takeOver(const QStringList &files, bool isAdded)
{
    m_openFiles = isAdded ? m_openFiles + files : files;
    if (!files.isEmpty())
        m_recent->add(files);
    emit openFilesChanged();
}

void olModelFiles::report(bool isFailed, const QString &headline, const QString &text)
{
    auto *box = new QMessageBox(isFailed ? QMessageBox::Critical : QMessageBox::Warning, tr("ORLO"), headline,
                                QMessageBox::Ok, &m_window);
    box->setInformativeText(text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}
