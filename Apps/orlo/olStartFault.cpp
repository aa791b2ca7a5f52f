#include "olStartFault.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olStartFault)
};

/// Another file of that kind; quits where none is chosen.
olStartRemedy otherFile(const QString &title, const QString &filter)
{
    const QString file = QFileDialog::getOpenFileName(nullptr, title, {}, filter);
    return {file.isEmpty() ? olStartRemedy::Quit : olStartRemedy::OtherFile, file};
}

} // namespace

olStartRemedy olAskAboutStore(const QString &fault)
{
    QMessageBox box(QMessageBox::Critical, Words::tr("Preferences"), Words::tr("The preferences cannot be loaded."));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(fault + QLatin1String("\n\n") +
                           Words::tr("The file is left as it is. With the defaults nothing of this run is kept."));
    const QPushButton *other = box.addButton(Words::tr("Another &Store..."), QMessageBox::ActionRole);
    QPushButton *defaults = box.addButton(Words::tr("&Defaults for This Run"), QMessageBox::AcceptRole);
    box.addButton(Words::tr("&Quit"), QMessageBox::RejectRole);
    box.setDefaultButton(defaults);
    box.exec();
    if (box.clickedButton() == other)
        return otherFile(Words::tr("Another Store"), Words::tr("Preferences (*.db);;All files (*)"));
    return {box.clickedButton() == defaults ? olStartRemedy::DefaultsForThisRun : olStartRemedy::Quit, {}};
}

olStartRemedy olAskAboutPlugin(const QString &fault)
{
    QMessageBox box(QMessageBox::Critical, Words::tr("Preferences"),
                    Words::tr("The plug-in with the preferences cannot be loaded."));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(fault);
    const QPushButton *other = box.addButton(Words::tr("Another &Plug-In..."), QMessageBox::ActionRole);
    QPushButton *quit = box.addButton(Words::tr("&Quit"), QMessageBox::RejectRole);
    box.setDefaultButton(quit);
    box.exec();
    if (box.clickedButton() == other)
        return otherFile(Words::tr("Another Plug-In"), Words::tr("Plug-ins (*.so);;All files (*)"));
    return {};
}
