#include "Framework/olChooseDirectory.h"

#include <QApplication>
#include <QFileDialog>
#include <QVariant>

QString olChooseDirectory(QWidget *parent, const QString &caption, const QString &startDirectory)
{
    auto *chooser = qApp->property("olDirectoryChooser").value<QObject *>();
    QString chosen;
    if (chooser &&
        QMetaObject::invokeMethod(chooser, "chooseDirectory", Qt::DirectConnection, Q_RETURN_ARG(QString, chosen),
                                  Q_ARG(QString, caption), Q_ARG(QString, startDirectory)))
        return chosen;
    return QFileDialog::getExistingDirectory(parent, caption, startDirectory, QFileDialog::ShowDirsOnly);
}
