#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

/// Writes the file anew and returns its name; the test fails where it cannot.
inline QString writtenFile(const QString &name, const QByteArray &content = {})
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << name.toStdString();
    return name;
}

/// What stands in the file; the test fails where it cannot be read.
inline QByteArray contentOf(const QString &name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}
