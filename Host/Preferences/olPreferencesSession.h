#pragma once

#include "Preferences/olPluginLoader.h"
#include "Preferences/olPreferencesStore.h"
#include "Utilities/olExport.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

class olPreferencesEntry;

/// Values of settings by their keys, wherever they are kept.
using olSettingValues = std::map<std::string, boost::any>;

/// One run of the host with its preferences: brings the store, the plug-in and the modules up in the host's order, and
/// takes them down again. Every operation that can fail returns an empty text or one sentence that says why.
class ORLO_SDK_EXPORT olPreferencesSession
{
public:
    explicit olPreferencesSession(const QString &storeFile);
    ~olPreferencesSession();
    olPreferencesSession(const olPreferencesSession &) = delete;
    olPreferencesSession &operator=(const olPreferencesSession &) = delete;

    /// Puts what is stored into the record and the preferences service. The first thing of a run.
    [[nodiscard]] QString loadStore();

    /// Loads the plug-in and enters it; see olPluginLoader.
    [[nodiscard]] QString loadPlugin(const QString &file);
    [[nodiscard]] olPluginLoader &plugin() { return m_plugin; }

    /// Fills the gaps in what was stored with the defaults of all modules.
    void fillDefaults();

    /// The whole start after loading: defaults, hooks, pages, first apply.
    void start();

    /// A new scene, to every module.
    void newScene();

    /// Stores what differs from what the store holds; values equal to their default are not kept.
    [[nodiscard]] QString save();

    /// Takes these modules' pages into their values, stores, and applies: what a person's OK does. When storing
    /// fails, every value is as it was before and nothing is applied. `besides` are values that count whatever the
    /// pages hold: of settings that no page shows, or that their control shows only rounded.
    [[nodiscard]] QString confirm(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides = {});

    /// Unloads the plug-in. Values are not stored by this.
    void stop() { m_plugin.unload(); }

    /// What a setting is without anyone's choice: the module's default. Empty for a key that has none.
    [[nodiscard]] boost::any defaultValue(const std::string &key) const;

    /// Why a setting cannot be changed; nothing where it can.
    [[nodiscard]] std::optional<QString> lockReason(const std::string &key) const;

    /// Of all modules in order, each key once.
    [[nodiscard]] static std::vector<std::string> keys();

private:
    [[nodiscard]] olPreferencesStore::Values current() const;

    olPreferencesStore m_store;
    olPreferencesStore::Values m_stored;
    olPluginLoader m_plugin;
};
