#pragma once

#include <QString>

class QWidget;

/// Lets a person choose a directory; empty where they choose none. A host may ask for it in its own way: by an object
/// that the application has as its property "olDirectoryChooser", with an invokable
/// `QString chooseDirectory(QString caption, QString startDirectory)`.
QString olChooseDirectory(QWidget *parent, const QString &caption, const QString &startDirectory);
