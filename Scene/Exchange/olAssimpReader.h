#pragma once

#include "Exchange/olImportJob.h"
#include "Model/olScene.h"
#include "State/olResult.h"

#include <QHash>
#include <QString>
#include <QStringList>

class Message_ProgressRange;

/// Reads a file with assimp, which knows many formats of meshes, into an empty document.
namespace olAssimpReader
{

/// What a format takes for granted.
struct Conventions {
    /// The length of the file's unit in millimetres.
    double unit = 1.0;

    /// Whether y goes up in it; else z does.
    bool isYUp = false;

    /// Whether its scene may have one node at the top that is a part or group like others.
    bool hasOwnRoot = false;

    /// Whether its colours are proportional to light; else they are as screens show them.
    bool isLinear = false;

    /// By those that the library makes up, the names that the file has; empty for what has none.
    QHash<QString, QString> names;
};

/// Says why it could not in half a sentence.
olResult<> read(const olImportJob &job, const Conventions &conventions, const olScene::Document &document,
                const Message_ProgressRange &progress, QStringList &remarks);

/// Of a format that takes nothing else for granted.
olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks);

} // namespace olAssimpReader
