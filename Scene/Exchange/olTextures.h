#pragma once

#include "Exchange/olImportJob.h"
#include "Model/olScene.h"

#include <QStringList>

/// Puts in the place of the document's textures, as the model names them, files that are there: where the model says,
/// else in the directories of the job. A texture that is nowhere is taken out, and a remark says so.
void olFindTextures(const olImportJob &job, const olScene::Document &document, QStringList &remarks);
