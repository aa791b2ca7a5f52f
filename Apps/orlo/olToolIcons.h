#pragma once

#include <QIcon>

/// The icons of the viewer's own actions, drawn in the colours of the palette of the moment.
namespace olToolIcons
{

/// A part within the four corners of a view.
[[nodiscard]] QIcon showAll();

/// A part under a magnifying glass.
[[nodiscard]] QIcon zoomTo();

} // namespace olToolIcons
