#pragma once

#include "Exchange/olImport.h"
#include "Model/olScene.h"
#include "Support/Files.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// What a document shows, in plain text that tests can compare.
struct Outline {
    explicit Outline(const olScene::Document &document);

    /// Of all instances, sorted, each once.
    QStringList names;

    /// Of all parts with their colour, sorted: name, red, green, blue, opacity.
    QStringList colours;
    unsigned triangles = 0;
    int parts = 0;

    /// Places where a part stands.
    int leaves = 0;
    double low[3] = {};
    double high[3] = {};
};

/// A scene with the sample, and a folder for its files.
class ImportTest : public testing::Test
{
protected:
    ImportTest();

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes the sample; the test fails where it cannot.
    QString exported(const QString &name);
    QString written(const QString &name, const QByteArray &content) const { return writtenFile(path(name), content); }

    /// Reads what must be readable.
    static olScene::Document imported(const olImportJob &job);
    static olScene::Document imported(const QString &file) { return imported(olImportJob::of(file)); }

    /// The files of its textures.
    static QStringList textures(const olScene::Document &document);

    /// Writes a red picture.
    static QString redPicture(const QString &file);

    /// The one message for a file that cannot be read; it names the file.
    static QString faultOf(const QString &file);

    olScene m_scene;

private:
    QTemporaryDir m_folder;
};
