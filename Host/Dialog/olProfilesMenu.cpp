#include "Dialog/olProfilesMenu.h"

#include "Editing/olPendingChanges.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace
{

/// A name may hold what else marks a letter of a menu.
QString shown(QString name) { return name.replace(QLatin1Char('&'), QLatin1String("&&")); }

} // namespace

olProfilesMenu::olProfilesMenu(const olProfiles &profiles, QWidget *parent)
    : QMenu(tr("&Profiles"), parent), m_profiles(profiles), m_removal(new QMenu(tr("&Delete"), this))
{
    setObjectName(QStringLiteral("profiles"));
    // Other programs make and delete profiles too.
    connect(this, &QMenu::aboutToShow, this, &olProfilesMenu::list);
}

void olProfilesMenu::list()
{
    clear();
    m_removal->clear();
    for (const olProfiles::Profile &profile : m_profiles.list()) {
        const QString text = shown(profile.name);
        QAction *applied = addAction(profile.isSites ? tr("%1 (site)").arg(text) : text);
        connect(applied, &QAction::triggered, this, [this, profile] { emit chosen(profile.name, profile.file); });
        if (!profile.isSites)
            connect(m_removal->addAction(text), &QAction::triggered, this, [this, profile] { remove(profile.name); });
    }
    addSeparator();
    addAction(tr("&Save As..."), this, &olProfilesMenu::saveAsked);
    m_removal->setEnabled(!m_removal->isEmpty());
    addMenu(m_removal);
}

void olProfilesMenu::saveAs(const olPreferencesSession &session, const olPendingChanges &pending)
{
    QDialog dialog(parentWidget());
    dialog.setWindowTitle(tr("Save Profile"));
    auto *name = new QLineEdit;
    auto *which = new QComboBox;
    which->addItems({tr("All Settings"), tr("Changed Settings")});
    which->insertSeparator(which->count());
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries())
        which->addItem(entry->name(), entry->name());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    auto *form = new QFormLayout(&dialog);
    form->addRow(tr("&Name:"), name);
    form->addRow(tr("&Settings:"), which);
    form->addRow(buttons);
    QPushButton *save = buttons->button(QDialogButtonBox::Save);
    save->setEnabled(false);
    connect(name, &QLineEdit::textChanged, save, [save](const QString &text) { save->setEnabled(!text.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted || !isReplaceAgreed(name->text()))
        return;

    const QString module = which->currentData().toString();
    olSettingValues kept;
    for (const auto &[key, value] : pending.inForce()) {
        const bool isOther = !module.isEmpty() && pending.ownerOf(key)->name() != module;
        const bool isUnchanged = which->currentIndex() == 1 && olValue::identical(value, session.defaultValue(key));
        if (!isOther && !isUnchanged)
            kept.emplace(key, value);
    }
    const olResult<> saved = m_profiles.save(name->text(), kept);
    if (saved.isOk())
        emit done(tr("The settings in force were saved as profile \"%1\".").arg(name->text()));
    else
        emit failed(saved.error());
}

bool olProfilesMenu::isReplaceAgreed(const QString &name)
{
    const auto profiles = m_profiles.list();
    const bool isThere = std::any_of(profiles.begin(), profiles.end(), [&name](const olProfiles::Profile &profile) {
        return profile.name == name && !profile.isSites;
    });
    return !isThere ||
           QMessageBox::question(parentWidget(), tr("Save Profile"),
                                 tr("There is a profile \"%1\" already. Replace it?").arg(name)) == QMessageBox::Yes;
}

void olProfilesMenu::remove(const QString &name)
{
    if (QMessageBox::question(parentWidget(), tr("Delete Profile"), tr("Delete the profile \"%1\"?").arg(name)) !=
        QMessageBox::Yes)
        return;
    const olResult<> removed = m_profiles.remove(name);
    if (removed.isOk())
        emit done(tr("The profile \"%1\" was deleted.").arg(name));
    else
        emit failed(removed.error());
}
