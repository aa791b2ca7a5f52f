#pragma once

#include "olHostExport.h"

#include <QByteArray>
#include <QSize>
#include <QString>

/// What the preferences dialog remembers from one run to the next, in the settings of the application.
struct ORLO_HOST_EXPORT olDialogMemory {
    /// Empty where nothing is remembered.
    QSize size;
    QByteArray splitter;
    QString page;

    [[nodiscard]] static olDialogMemory recall();
    void keep() const;
};
