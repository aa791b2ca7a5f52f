#pragma once

#include "Framework/olFormPage.h"

#include <string>
#include <vector>

namespace Ui
{
class olFileIOPreferencesGUI;
}

/// The page of the settings that hold for every import, and of the directories searched for textures.
class olFileIOPreferencesGUIW : public olFormPage<Ui::olFileIOPreferencesGUI>
{
    Q_OBJECT

public:
    olFileIOPreferencesGUIW();
    ~olFileIOPreferencesGUIW() override;

    /// The rows of the table from the top (UTF-8). What is set stands in the given order until the user sorts it.
    void setSearchPaths(const std::vector<std::string> &paths);
    [[nodiscard]] std::vector<std::string> searchPaths() const;

public slots:
    void clickedAdd();
    void clickedSub();
    void clickedGetTmpPath();

private:
    void setUpBrowseButton();
    void appendSearchPath(const QString &path);
    [[nodiscard]] bool hasSearchPath(const QString &path) const;
};
