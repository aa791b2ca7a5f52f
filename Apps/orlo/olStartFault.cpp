#include "olStartFault.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace
{

QString translated(const char *text) { return QApplication::translate("olStartFault", text); }

/// Another file of that kind; quits where none is chosen.
olStartRemedy otherFile(const QString &title, const QString &filter)
{
    const QString file = QFileDialog::getOpenFileName(nullptr, title, {}, filter);
    return {file.isEmpty() ? olStartRemedy::Quit : olStartRemedy::OtherFile, file};
}

} // namespace

olStartRemedy olAskAboutStore(const QString &fault)
{
    QMessageBox box(QMessageBox::Critical, translated("Preferences"), translated("The preferences cannot be loaded."));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(fault + QLatin1String("\n\n") +
                           translated("The file is left as it is. With the defaults nothing of this run is kept."));
    const QPushButton *other = box.addButton(translated("Another &Store..."), QMessageBox::ActionRole);
    QPushButton *defaults = box.addButton(translated("&Defaults for This Run"), QMessageBox::AcceptRole);
    box.addButton(translated("&Quit"), QMessageBox::RejectRole);
    box.setDefaultButton(defaults);
    box.exec();
    if (box.clickedButton() == other)
        return otherFile(translated("Another Store"), translated("Preferences (*.db);;All files (*)"));
    return {box.clickedButton() == defaults ? olStartRemedy::DefaultsForThisRun : olStartRemedy::Quit, {}};
}

olStartRemedy olAskAboutPlugin(const QString &fault)
{
    QMessageBox box(QMessageBox::Critical, translated("Preferences"),
                    translated("The plug-in with the preferences cannot be loaded."));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(fault);
    const QPushButton *other = box.addButton(translated("Another &Plug-In..."), QMessageBox::ActionRole);
    QPushButton *quit = box.addButton(translated("&Quit"), QMessageBox::RejectRole);
    box.setDefaultButton(quit);
    box.exec();
    if (box.clickedButton() == other)
        return otherFile(translated("Another Plug-In"), translated("Plug-ins (*.so);;All files (*)"));
    return {};
}
