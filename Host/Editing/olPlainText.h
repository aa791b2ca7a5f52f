#pragma once

#include <QString>
#include <QTextDocument>
#include <QTextDocumentFragment>

/// What a text says without its markup, if it has any: tooltips may be rich.
[[nodiscard]] inline QString olPlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}
