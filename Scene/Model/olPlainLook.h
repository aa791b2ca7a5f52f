#pragma once

#include "Model/olScene.h"

#include <Quantity_Color.hxx>
#include <XCAFDoc_VisMaterialCommon.hxx>

/// A colour without a material, and a material that is no more than a colour, look the same in the view and in every
/// format.
namespace olPlainLook
{

/// Formats count how much a look shines up to this, the library up to 1.
constexpr float shiniest = 1000;

/// The colour of what has none.
[[nodiscard]] Quantity_Color bare();

/// The look of a material that says nothing but its colour.
[[nodiscard]] XCAFDoc_VisMaterialCommon bareLook(const Quantity_ColorRGBA &color);

/// Makes colours of materials that are no more than that, and gives those that only say how metallic and rough they are
/// the look of their base colour: the view does not compute the reflections that would make them more than white.
void addTo(const olScene::Document &document);

/// A copy in which what has a colour has a material of it. Writers of materials would make up the rest else.
[[nodiscard]] olScene::Document asMaterials(const olScene::Document &document);

} // namespace olPlainLook
