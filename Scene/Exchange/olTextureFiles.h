#pragma once

#include <Image_Texture.hxx>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>

/// The pictures that a model on its way out needs, in a folder of their own beside it.
class olTextureFiles
{
public:
    olTextureFiles(const QString &modelFile, QStringList &remarks);

    /// A picture as every program reads it, PNG or JPEG; empty, with a remark, where it is not there any more.
    [[nodiscard]] QByteArray contentOf(const Image_Texture &texture);

    /// The file's name as the model is to say it, with slashes; empty where there is none. What is used twice is
    /// written once.
    [[nodiscard]] QString placeOf(const Handle(Image_Texture) & texture);

private:
    QString m_folder;
    QString m_folderName;
    QStringList &m_remarks;
    std::map<QString, QString> m_places;
};
