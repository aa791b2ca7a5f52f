#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <optional>

/// The editions in which the application is sold, smallest first.
enum class olEdition { Essentials, Design, Professional, Enterprise };

/// `essentials`, `design`, `professional` or `enterprise`, in any case; nothing for any other text.
ORLO_SDK_EXPORT std::optional<olEdition> olEditionNamed(const QString &name);
