#pragma once

#include "Framework/olPageWidget.h"
#include "Framework/olSettingList.h"
#include "Kernel/olPreferences.h"

#include <QObject>

#include <memory>
#include <type_traits>
#include <utility>

class olMessage;

/// What every module is: one of the host's preferences, with the signals and translations of a QObject, that owns a
/// page and the list of its settings. The operations are walks over that list, so what a module adds is the list itself
/// and what applying does.
///
/// `Host` is the kind of preferences that the host knows it as: olPreferences or olPreferencesCategory.
template <class Page, class Host = olPreferences> class olModule : public QObject, public Host
{
public:
    /// The values go first, then the host loses the page, and then nobody can ask any more.
    ~olModule() override
    {
        m_settings.removeKeys();
        this->subPreferencesGUI(m_page.get());
    }

    void setDefaults(olMessage &, bool flag) override { m_settings.writeDefaults(flag); }
    void updateGUI() override { m_settings.showOnPage(); }
    void updateData() override
    {
        m_settings.takeFromPage([this](const std::string &key) {
            // A category sees for itself what changed.
            if constexpr (std::is_base_of_v<olPreferences, Host>)
                this->addUnchanged(key.c_str());
            else
                static_cast<void>(this); // captured for the others
        });
    }

protected:
    /// Registers under that name, and below the category where the host has some, and makes the page. The module still
    /// has to list its settings and to hand the page over.
    template <class... Texts>
    explicit olModule(Texts &&...texts)
        : Host(std::forward<Texts>(texts)...), m_page(std::make_unique<Page>()), m_settings(*this)
    {
    }

    /// Gives the page to the host: the last thing of a constructor, so that whoever looks through a page that comes
    /// finds all of its settings.
    void handOverPage()
    {
        m_settings.tellOn(*m_page);
        this->addPreferencesGUI(m_page.get());
    }

    [[nodiscard]] Page &page() const { return static_cast<Page &>(*m_page); }
    [[nodiscard]] olSettingList &settings() { return m_settings; }

private:
    // In this order: the list refers to the page's controls, so it goes before them.
    std::unique_ptr<olPageWidget> m_page;
    olSettingList m_settings;
};
