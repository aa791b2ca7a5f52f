#pragma once

#include "Model/olScene.h"

#include <QColor>
#include <QString>

#include <vector>

/// What stands in a scene, as people look at it.
struct olSceneNode {
    enum class Kind {
        Group,
        Part,
        Level ///< One of a part's levels of detail.
    };

    /// As the explorer of the document names it; a level is its part's id with "#" and its number, from 0.
    QString id;
    QString name; ///< Empty where it has none.
    Kind kind = Kind::Part;
    QColor color; ///< With its opacity; invalid where there is none.
    unsigned triangles = 0;
    std::vector<olSceneNode> below;
};

/// The nodes at the top of a document, with all that is below them.
[[nodiscard]] std::vector<olSceneNode> olSceneStructure(const olScene::Document &document);
