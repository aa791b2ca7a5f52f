#pragma once

#include "olHostExport.h"

#include <QByteArray>
#include <QRect>
#include <QString>
#include <QStringList>

/// What the preferences dialog remembers from one run to the next, in the settings of the application.
struct ORLO_HOST_EXPORT olDialogMemory {
    /// Empty where nothing is remembered.
    QRect place; ///< without the window's frame
    QByteArray splitter;
    QString page;
    QStringList openCategories;

    [[nodiscard]] static olDialogMemory recall();
    void keep() const;
};
