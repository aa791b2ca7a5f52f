#pragma once

#include <QDir>
#include <QPixmap>
#include <QString>
#include <QWidget>

/// Where pictures of what is tested are left, for people to look at.
namespace Pictures
{

/// Empty: none are taken.
inline QString &folder()
{
    static QString path;
    return path;
}

inline void take(QWidget &widget, QString name)
{
    if (!folder().isEmpty())
        widget.grab().save(
            QDir(folder()).filePath(name.replace(QLatin1Char('/'), QLatin1Char('-')) + QLatin1String(".png")));
}

} // namespace Pictures
