#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Names one after the other, as the language separates them.
inline QString olListed(const QStringList &names)
{
    QString text = names.value(0);
    for (int index = 1; index < names.size(); ++index)
        text = QCoreApplication::translate("olListed", "%1, %2", "one name of a list, and the next")
                   .arg(text, names[index]);
    return text;
}

/// Whole sentences one after the other, which not every language parts by a blank.
inline QString olSentences(const QStringList &sentences)
{
    QString text = sentences.value(0);
    for (int index = 1; index < sentences.size(); ++index)
        text =
            QCoreApplication::translate("olListed", "%1 %2", "one sentence, and the next").arg(text, sentences[index]);
    return text;
}
