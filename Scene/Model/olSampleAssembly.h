#pragma once

#include "Model/olScene.h"

/// A small assembly that the program builds itself: a bearing with a shaft in a housing, balls that share one shape,
/// a transparent cover, a part with levels of detail, and a mesh without a surface.
class olSampleAssembly
{
public:
    [[nodiscard]] static olScene::Document build();
};
