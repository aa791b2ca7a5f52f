#pragma once

#include "State/olImportRecord.h"

#include <QString>

#include <vector>

/// What one import goes by: the file and everything that was set for its format when the import began, so that it can
/// be read in any thread while the preferences change.
struct olImportJob {
    /// As the preferences are now; to be called in the GUI thread.
    static olImportJob of(const QString &file);

    QString file;

    /// Where the file is seen without those that lie beside it; empty where it may refer to them.
    QString loneFile;

    /// As it is to be opened.
    [[nodiscard]] const QString &fileToRead() const { return loneFile.isEmpty() ? file : loneFile; }

    /// For so long reading may make no progress before it is given up; milliseconds.
    int patience = 60000;

    olImportRecord options;
    bool verify = true;
    bool optimize = false;
    bool centerInOrigin = false;
    bool putOnGround = false;

    /// How the numbers of a format are meant that does not say it: the unit in millimetres, and whether y goes up.
    double unit = 1.0;
    bool isYUp = false;

    /// Where files may be left while reading; the system's own place where none is set.
    QString temporaryDirectory;

    /// Where textures are searched that do not lie where the model says.
    std::vector<std::string> textureDirectories;
};
