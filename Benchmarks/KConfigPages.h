#pragma once

#include <QWidget>

#include <memory>
#include <vector>

class KConfigDialogManager;
class KConfigSkeleton;

/// The same forms with their plain controls run by KConfigDialogManager over settings held in memory. What it knows no
/// property for (lists, colours, two settings on one control) it does without.
class KConfigPages
{
public:
    /// The modules serve to know which control edits which setting.
    KConfigPages();
    ~KConfigPages();

    void fill() const;

    [[nodiscard]] int settings() const { return m_settings; }

private:
    struct Page {
        std::unique_ptr<QWidget> form;
        std::unique_ptr<KConfigSkeleton> skeleton;
        KConfigDialogManager *manager; ///< owned by the form
    };

    int m_settings = 0;
    std::vector<Page> m_pages;
};
