#pragma once

#include "olHostExport.h"

#include <QDialog>
#include <QString>

class QTextBrowser;

/// Shows one of the documents that were installed with the program.
class ORLO_HOST_EXPORT olDocumentView : public QDialog
{
    Q_OBJECT

public:
    explicit olDocumentView(QWidget *parent);

    /// The file of that name beside or behind the program; empty where it is not installed.
    [[nodiscard]] static QString find(const QString &name);

    /// Shows the section that has a line about that code name, and the line in it; for none, all of the document. False
    /// where the file cannot be read or has no such line.
    [[nodiscard]] bool show(const QString &file, const QString &codeName = {});

private:
    QTextBrowser *m_text;
};
