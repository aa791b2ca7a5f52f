#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <optional>

/// The editions in which the application is sold, smallest first.
enum class olEdition { Essentials, Design, Professional, Enterprise };

/// `essentials`, `design`, `professional` or `enterprise`.
ORLO_SDK_EXPORT QString olEditionName(olEdition edition);
/// The edition of such a name, in any case; nothing for any other text.
ORLO_SDK_EXPORT std::optional<olEdition> olEditionNamed(const QString &name);
