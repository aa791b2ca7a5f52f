#pragma once

#include <QColor>
#include <QPalette>

/// The colours in which pages are looked at, besides those of the style.
namespace Palettes
{

inline QPalette of(const QColor &window, const QColor &base, const QColor &ink, const QColor &highlight)
{
    QPalette palette(window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role,
                         QColor((ink.red() + window.red()) / 2, (ink.green() + window.green()) / 2,
                                (ink.blue() + window.blue()) / 2));
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, highlight.lightness() < 128 ? Qt::white : Qt::black);
    return palette;
}

inline QPalette dark()
{
    return of(QColor(45, 45, 48), QColor(30, 30, 32), QColor(220, 220, 220), QColor(42, 130, 218));
}

inline QPalette contrast() { return of(Qt::black, Qt::black, Qt::white, Qt::yellow); }

} // namespace Palettes
