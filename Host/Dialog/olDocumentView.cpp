#include "Dialog/olDocumentView.h"

#include "Dialog/olWindowPlace.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QTextTable>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

/// From the heading of the second level before that place to the next one.
QString sectionAround(const QString &text, int place)
{
    const QString mark = QStringLiteral("\n## ");
    const int start = std::max(0, text.lastIndexOf(mark, place));
    const int end = text.indexOf(mark, place);
    return text.mid(start, end < 0 ? -1 : end - start);
}

} // namespace

olDocumentView::olDocumentView(QWidget *parent) : QDialog(parent), m_text(new QTextBrowser)
{
    m_text->setObjectName(QStringLiteral("document"));
    m_text->setOpenExternalLinks(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(buttons);
    resize(olWindowPlace::letterWidth(fontMetrics()) * 130, fontMetrics().height() * 30);
}

QString olDocumentView::find(const QString &name)
{
    const QString program = QCoreApplication::applicationDirPath();
    QStringList files{program + QStringLiteral("/../share/doc/orlo/") + name,
                      program + QStringLiteral("/../../docs/") + name};
    files << QStandardPaths::locate(QStandardPaths::GenericDataLocation, QStringLiteral("doc/orlo/") + name);
    for (const QString &file : files) {
        if (QFileInfo(file).isFile())
            return QDir::cleanPath(file);
    }
    return {};
}

bool olDocumentView::show(const QString &file, const QString &codeName)
{
    QFile document(file);
    if (!document.open(QIODevice::ReadOnly))
        return false;
    QString text = QString::fromUtf8(document.readAll());
    if (!codeName.isEmpty()) {
        const int place = text.indexOf(QStringLiteral("| `%1` |").arg(codeName));
        if (place < 0)
            return false;
        text = sectionAround(text, place);
    }
    setWindowTitle(codeName.isEmpty() ? QFileInfo(file).fileName() : codeName);
    m_text->setMarkdown(text);
    QDialog::show();
    raise();
    activateWindow();
    // The whole row of a table is its line.
    QTextCursor found = codeName.isEmpty() ? QTextCursor() : m_text->document()->find(codeName);
    if (QTextTable *table = found.isNull() ? nullptr : found.currentTable()) {
        const int row = table->cellAt(found).row();
        found.setPosition(table->cellAt(row, 0).firstPosition());
        found.setPosition(table->cellAt(row, table->columns() - 1).lastPosition(), QTextCursor::KeepAnchor);
    }
    if (!found.isNull()) {
        m_text->setTextCursor(found);
        m_text->ensureCursorVisible();
    }
    return true;
}
