#pragma once

#include "Framework/olFormPage.h"
#include "Framework/olSettingTraits.h"

namespace Ui
{
class olWebInterfacePreferencesGUI;
}

/// The page of the web server's settings. Switching the server on must be confirmed, and the two ways of restricting
/// it exclude each other.
class olWebInterfacePreferencesGUIW : public olFormPage<Ui::olWebInterfacePreferencesGUI>
{
    Q_OBJECT

public:
    olWebInterfacePreferencesGUIW();
    ~olWebInterfacePreferencesGUIW() override;

    /// What is asked before the server is switched on.
    [[nodiscard]] static olWarning enablingQuestion();

    /// Until then the page neither asks nor keeps the two restrictions apart.
    void connectSlots();

    /// For a server that must not run: switching it on here means nothing, so it is not confirmed either.
    void neverAsk() { m_neverAsks = true; }

    /// While it lives the page is being filled: what changes on it was not the user's doing.
    class Filling
    {
    public:
        explicit Filling(olWebInterfacePreferencesGUIW &page);
        ~Filling();
        Filling(const Filling &) = delete;
        Filling &operator=(const Filling &) = delete;

    private:
        olWebInterfacePreferencesGUIW &m_page;
    };

public slots:
    /// Asks whether the server shall really be switched on, and switches it off again where it shall not.
    void toggledEnable(bool checked);

    void toggledLocalhostOnly(bool checked);
    void toggledAllowedHosts(bool checked);

private:
    [[nodiscard]] bool confirmsServer();

    bool m_neverAsks = false;
    bool m_isFilling = false;
};
