#pragma once

#include <QIcon>

class QPalette;

/// The icons of the viewer's own actions, drawn in the colours of a palette.
namespace olToolIcons
{

/// A part within the four corners of a view.
[[nodiscard]] QIcon showAll(const QPalette &palette);

/// A part under a magnifying glass.
[[nodiscard]] QIcon zoomTo(const QPalette &palette);

} // namespace olToolIcons
