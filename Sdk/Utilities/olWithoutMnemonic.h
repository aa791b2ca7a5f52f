#pragma once

#include <QLatin1Char>
#include <QLatin1String>
#include <QString>

/// The text of a control as it stands on the screen, without the mark of its mnemonic. A doubled ampersand stands for
/// itself; East Asian texts have the mark in brackets of its own, "(&F)".
inline QString olWithoutMnemonic(const QString &text)
{
    constexpr auto mark = QLatin1Char('&');
    QString plain;
    for (int index = 0; index < text.size(); ++index) {
        const QString bracket = text.mid(index, 4);
        if (bracket.size() == 4 && bracket.startsWith(QLatin1String("(&")) && bracket.at(2).isLetterOrNumber() &&
            bracket.endsWith(QLatin1Char(')'))) {
            index += 3;
            continue;
        }
        if (text.at(index) == mark && index + 1 < text.size())
            ++index;
        plain += text.at(index);
    }
    return plain;
}
