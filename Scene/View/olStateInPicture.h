#pragma once

class olHostValueBase;

/// Which of the host's values the picture depends on, and what of it: a value that is not known here costs nothing
/// when it changes, and one that is has nothing else done anew.
namespace olStateInPicture
{

/// In bits.
enum Part : unsigned {
    Frame = 1 << 0, ///< Looked up anew with each frame; nothing else is to be done.
    Camera = 1 << 1,
    Lights = 1 << 2,
    Hovering = 1 << 3, ///< How that looks which is under the mouse.
    Solidity = 1 << 4, ///< What of a transparent part hides others.
    Selection = 1 << 5,
    All = (1 << 6) - 1
};

/// 0 for a value that the picture does not depend on.
[[nodiscard]] unsigned partsOf(const olHostValueBase &value);

} // namespace olStateInPicture
