#pragma once

#include "Framework/olModule.h"
#include "Framework/olSettingList.h"

#include <memory>

class olFileTypePreferencesGUIW;
struct olImportSettings;

/// How the files of one CAD format are imported. Each format is a class of its own with a page of its own; what they
/// have in common stands here.
class olFileTypePreferences : public olModule
{
    Q_OBJECT

public:
    ~olFileTypePreferences() override;

    void setDefaults(olMessage &, bool flag) override;
    void applyPreferences() override;
    void updateGUI() override;
    void updateData() override;

protected:
    /// Shows the groups that a format has for itself, before the page is handed to the host.
    using ShowGroups = void (olFileTypePreferencesGUIW::*)();

    /// A format with the import options, under the keys of its file type (see olFileType.h). Settings that it has
    /// beyond them it adds to the list.
    olFileTypePreferences(int fileType, const char *displayName, ShowGroups showGroups = nullptr);

    /// A format without the import options: it lists settings of its own and replaces the four operations.
    olFileTypePreferences(const char *displayName, ShowGroups showGroups);

    [[nodiscard]] olFileTypePreferencesGUIW &page() const { return *m_page; }
    [[nodiscard]] olSettingList &settings() { return m_settings; }

    /// Only of a format that has them.
    [[nodiscard]] const olImportSettings &importSettings() const { return *m_import; }

    // One belongs to Base CAD, the other to PLM XML. The defaults of every format write both, under just these keys,
    // and only their owner removes them.
    static const olSetting<bool> useAtf;
    static const olSetting<bool> loadReferencedFiles;

    /// What the importers know the legacy loader of JT and Rhino by.
    static constexpr char legacyLoaderName[] = "VWSH";

private:
    olFileTypePreferences(const char *displayName, ShowGroups showGroups, std::unique_ptr<olImportSettings> import);

    void listImportSettings();

    std::unique_ptr<olFileTypePreferencesGUIW> m_page;
    std::unique_ptr<olImportSettings> m_import;
    olSettingList m_settings;
};
