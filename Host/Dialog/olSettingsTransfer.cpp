#include "Dialog/olSettingsTransfer.h"

#include "Dialog/olChangesView.h"
#include "Dialog/olHistoryView.h"
#include "Dialog/olProfilesMenu.h"
#include "Dialog/olSettingWords.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olPreferencesImport.h"
#include "Session/olPreferencesSession.h"
#include "Session/olUndo.h"

#include <QFileDialog>
#include <QMenu>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

olSettingsTransfer::olSettingsTransfer(olPreferencesSession &session, olPendingChanges &pending,
                                       const olSettingWords &words, QWidget &parent)
    : m_session(session), m_pending(pending), m_words(words), m_parent(parent)
{
}

void olSettingsTransfer::addTo(QMenu &menu)
{
    menu.addAction(tr("&Import..."), this, &olSettingsTransfer::chooseImport);
    menu.addAction(tr("&Export..."), this, &olSettingsTransfer::chooseExport);
    menu.addSeparator();
    auto *profiles = new olProfilesMenu({m_session.store().file(), m_session.siteFiles()}, &m_parent);
    menu.addMenu(profiles);
    connect(profiles, &olProfilesMenu::saveAsked, this, [this, profiles] { profiles->saveAs(m_session, m_pending); });
    connect(profiles, &olProfilesMenu::done, this, &olSettingsTransfer::done);
    connect(profiles, &olProfilesMenu::failed, this, &olSettingsTransfer::failed);
    connect(profiles, &olProfilesMenu::chosen, this, [this](const QString &name, const QString &file) {
        preview(tr("Apply Profile %1").arg(name), tr("&Apply"), olPreferencesFile::read(file));
    });
    menu.addAction(tr("&History..."), this, &olSettingsTransfer::showHistory);
}

void olSettingsTransfer::chooseImport()
{
    const QString file = QFileDialog::getOpenFileName(&m_parent, tr("Import Preferences"), {},
                                                      tr("Preferences (*.json);;All files (*)"));
    if (!file.isEmpty())
        importFrom(file);
}

void olSettingsTransfer::chooseExport()
{
    const QString file = QFileDialog::getSaveFileName(&m_parent, tr("Export Preferences"), tr("preferences.json"),
                                                      tr("Preferences (*.json);;All files (*)"));
    if (!file.isEmpty())
        exportTo(file);
}

void olSettingsTransfer::importFrom(const QString &file)
{
    preview(tr("Import Preferences"), tr("&Import"), olPreferencesFile::read(file));
}

void olSettingsTransfer::exportTo(const QString &file)
{
    const olResult<> written = olPreferencesFile::write(file, m_pending.inForce());
    if (!written.isOk())
        emit failed(written.error());
    else if (m_pending.isEmpty())
        emit done(tr("The preferences were written to %1.").arg(file));
    else
        emit done(tr("The preferences in force were written to %1, without the pending changes.").arg(file));
}

void olSettingsTransfer::preview(const QString &title, const QString &action,
                                 const olResult<olPreferencesFile::Contents> &contents)
{
    if (!contents.isOk()) {
        emit failed(contents.error());
        return;
    }
    const auto valueOf = [this](const std::string &key) { return m_pending.value(key); };
    const olPreferencesImport import(m_session, *contents, valueOf);

    auto *view = new olChangesView(title, &m_parent);
    // Not by its closing: a question may be asked before it has told what is ticked.
    connect(view, &QDialog::finished, view, &QObject::deleteLater);
    view->setIntroduction(import.changes.empty()
                              ? tr("Nothing would change.")
                              : tr("These settings get new values. They stay pending until OK or Apply."));
    std::vector<olListedChange> listed;
    for (const olPreferencesImport::Change &change : import.changes)
        listed.push_back(m_words.change(change.key, change.before, change.after));
    view->setChanges(listed);
    for (const olSkippedSetting &skipped : import.skipped)
        view->addSkipped(QString::fromStdString(skipped.key), skipped.reason);
    view->askFor(action);
    connect(view, &QDialog::accepted, this, [this, view, import] {
        const QStringList ticked = view->ticked();
        olSettingValues values = import.values();
        for (auto value = values.begin(); value != values.end();)
            value = ticked.contains(QString::fromStdString(value->first)) ? std::next(value) : values.erase(value);
        m_pending.put(values);
    });
    view->fit();
    view->open();
}

void olSettingsTransfer::showHistory()
{
    const olResult<olUndo> undo = olUndo::of(m_session, 0);
    if (!undo.isOk()) {
        emit failed(undo.error());
        return;
    }
    auto *view = new olHistoryView(
        *undo, [this](const std::string &key) { return m_words.place(key); }, &m_parent);
    view->setAttribute(Qt::WA_DeleteOnClose);
    connect(view, &olHistoryView::chosen, this, &olSettingsTransfer::goBack);
    view->open();
}

void olSettingsTransfer::goBack(int number)
{
    // Others may have saved while the list was shown.
    const olResult<olUndo> now = olUndo::of(m_session, 0);
    const auto isTakenBack = [number](const olStoreRows::Save &save) { return save.number >= number; };
    const auto saves = now.isOk() ? std::count_if(now->history().begin(), now->history().end(), isTakenBack) : 0;
    const olResult<olUndo> undo = olUndo::of(m_session, std::size_t(saves));
    if (!undo.isOk()) {
        emit failed(undo.error());
        return;
    }
    olPreferencesFile::Contents earlier{{}, undo->left()};
    for (const olStoreRows::Change &change : undo->changes())
        earlier.settings[change.key.second] = undo->value(change.key, change.after);
    preview(tr("Go Back"), tr("&Go Back"), earlier);
}
