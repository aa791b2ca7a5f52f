#pragma once

#include "olHostExport.h"

#include <QCoreApplication>
#include <QString>

#include <string>

/// When a setting's value has its effect here, in the words of the dialog; all empty for one that has it at once.
struct ORLO_HOST_EXPORT olEffectText {
    Q_DECLARE_TR_FUNCTIONS(olEffectText)

public:
    QString brief;    ///< beside the setting
    QString sentence; ///< about the setting
    QString page;     ///< about a page all of whose settings are like that

    /// The effect is as the setting's description has it.
    [[nodiscard]] static olEffectText of(const std::string &key, const QString &effect);
};
