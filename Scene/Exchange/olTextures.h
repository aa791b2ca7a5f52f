#pragma once

#include "Exchange/olImportJob.h"
#include "Model/olScene.h"

#include <Image_Texture.hxx>

#include <QByteArray>
#include <QStringList>

class QImage;

/// Puts in the place of the document's textures, as the model names them, files that are there: where the model says,
/// else in the directories of the job. A texture that is nowhere, or
/// that is no picture, or a larger one than can be drawn, is taken out, and a remark says so.
void olFindTextures(const olImportJob &job, const olScene::Document &document, QStringList &remarks);

/// A texture that needs no file.
[[nodiscard]] Handle(Image_Texture) olTextureOf(const QImage &picture);

/// The same of the bytes of a picture's file.
[[nodiscard]] Handle(Image_Texture) olTextureOf(const QByteArray &bytes);
