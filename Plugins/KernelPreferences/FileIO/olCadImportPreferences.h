#pragma once

#include "FileIO/olFileTypePreferences.h"

#include <memory>

struct olImportSettings;

/// How the files of one CAD format are imported. Each format is a class of its own; what they have in common stands
/// here.
class olCadImportPreferences : public olFileTypePreferences
{
    Q_OBJECT

public:
    ~olCadImportPreferences() override;

    void applyPreferences() override;
    void updateGUI() override;

protected:
    /// Lists what a format has beyond the import options, and shows the groups of the page that it has for itself.
    using Extend = void (*)(olSettingList &settings, olFileTypePreferencesGUIW &page);

    /// The settings live under the keys of the file type (see olFileType.h).
    olCadImportPreferences(int fileType, const char *displayName, Extend extend = nullptr);

    [[nodiscard]] const olImportSettings &importSettings() const { return *m_import; }

    // One belongs to Base CAD, the other to PLM XML. The defaults of every format write both, under just these keys,
    // and only their owner removes them.
    static const olSetting<bool> useAtf;
    static const olSetting<bool> loadReferencedFiles;

    /// What the importers know the legacy loader of JT and Rhino by.
    static constexpr char legacyLoaderName[] = "VWSH";

private:
    void listImportSettings();

    std::unique_ptr<olImportSettings> m_import;
};
