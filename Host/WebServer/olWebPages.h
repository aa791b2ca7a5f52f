#pragma once

#include "WebServer/olWebRequest.h"

/// The pages of the web server: how the host stands, for people and for programs. Nothing can be changed through them,
/// and what is confidential is left out.
namespace olWebPages
{

/// To be called on the GUI thread: the record and the host's state are read as they are.
[[nodiscard]] olWebAnswer answer(const olWebRequest &request);

/// What a host gets that is not let in.
[[nodiscard]] olWebAnswer refusal();

} // namespace olWebPages
