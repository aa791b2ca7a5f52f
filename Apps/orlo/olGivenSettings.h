#pragma once

#include "State/olResult.h"

#include <QString>
#include <QStringList>

#include <string>

struct olSettingWarning;
class olPreferencesSession;

/// Why a setting that must be agreed to is left as it is where nobody can be asked.
[[nodiscard]] QString olRefusalUnasked(const std::string &key, const olSettingWarning &question);

/// Puts settings given as "KEY=VALUE" into the record, where they hold for this run. The modules must be there; the
/// host applies them when it starts. What a site locked stays as it is. Says what is wrong with the first one that
/// cannot be set.
olResult<> olSetGivenSettings(const olPreferencesSession &session, const QStringList &settings);
