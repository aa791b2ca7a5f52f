#pragma once

#include "Session/olPluginLoader.h"
#include "Session/olSettingDescription.h"
#include "Session/olSiteDefaults.h"
#include "Session/olTranslations.h"
#include "State/olHome.h"
#include "State/olResult.h"
#include "Store/olPreferencesStore.h"
#include "olHostExport.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

class olPreferencesEntry;

/// Values of settings by their keys, wherever they are kept.
using olSettingValues = std::map<std::string, boost::any>;

/// A setting that another program has given another value.
struct olOutsideChange {
    olHome home = olHome::Record;
    std::string key;
    boost::any before;
    boost::any after;
    QString program; ///< empty where the store does not tell
};

/// One run of the host with its preferences: brings the store, the plug-in and the modules up in the host's order, and
/// takes them down again. What can fail says why in full sentences.
class ORLO_HOST_EXPORT olPreferencesSession : public QObject
{
    Q_OBJECT

public:
    /// `siteFiles` are the site's files of defaults and locks; see olSiteDefaults.
    explicit olPreferencesSession(const QString &storeFile,
                                  const QStringList &siteFiles = olSiteDefaults::systemFiles());
    ~olPreferencesSession() override;

    /// Puts what is stored into the record and the preferences service. The first thing of a run. Damage is no
    /// failure: the last good copy is loaded and takeNotices() tells of it.
    olResult<> loadStore(olStoreUse use = olStoreUse::Own);

    /// What the person at the screen is to be told, each once: a damaged store and where it is now, faults in a site
    /// file, a module that threw. To be asked after the start and after each save.
    [[nodiscard]] QStringList takeNotices() { return std::exchange(m_notices, {}); }

    /// Has all texts that are made from now on in a language, the plug-in's too where it is not loaded yet. 0 is
    /// English; the language that the person chose is the host's display language once the store is loaded.
    [[nodiscard]] olTranslations &translations() { return m_translations; }

    /// Loads the plug-in and enters it; see olPluginLoader.
    olResult<> loadPlugin(const QString &given);
    [[nodiscard]] olPluginLoader &plugin() { return m_plugin; }

    /// Fills the gaps in what was stored with the defaults of the site and of all modules, and sets what is locked.
    void fillDefaults();

    /// The whole start after loading: defaults, hooks, pages, first apply.
    void start();

    /// A new scene, to every module.
    void newScene();

    /// From here on what other programs save comes into force in this run within a second, but for settings that this
    /// run has changed without saving them; and noticed() tells of a site file that changed.
    void follow();

    /// The same once, now.
    void takeOver();

    /// To consentWanted(). Agreed to, the value comes into force like another program's other values. Not agreed to,
    /// the value in force counts as chosen in this run, and its next save stores that.
    void answer(const std::string &key, bool isAgreed);

    /// Stores what differs from what the store holds. Values equal to their default are kept only where somebody chose
    /// them instead of another one: in another edition the default may be another. A locked setting first gets its
    /// locked value back; what a person once stored for it stays in the store for a time without the lock.
    olResult<> save();

    /// For the next save: the value is kept although it is the default, or is not kept any longer if it is.
    void choose(const std::string &key);
    void restore(const std::string &key);

    /// Takes these modules' pages into their values, stores, and applies: what a person's OK does. When storing fails,
    /// every value is as it was before and nothing is applied. `besides` are values that count whatever the pages hold:
    /// of settings that no page shows, or that their control shows only rounded. `restored` are settings that were
    /// taken back to their defaults, see restore().
    olResult<> commit(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides = {},
                      const std::set<std::string> &restored = {});

    /// Lets the view show these values instead of those in force, and those in force again for what an earlier call
    /// gave and this one does not. Passed over is what can not be previewed, or not have that value. The values in
    /// force stay what they are: nothing else reads, stores or compares with those previewed. A commit() ends it.
    void preview(const olSettingValues &values);

    /// Unloads the plug-in. Values are not stored by this.
    void stop();

    /// Holds a site's files against the settings there are, in force here or not.
    void resolveSite(olSiteDefaults &site) const;

    /// What a setting is without anyone's choice: the site's default, else the module's. Empty for a key that has none.
    [[nodiscard]] boost::any defaultValue(const std::string &key) const;

    /// Why a setting cannot be changed; nothing where it can.
    [[nodiscard]] std::optional<QString> lockReason(const std::string &key) const;

    /// The site's file that speaks of the setting; empty where none does.
    [[nodiscard]] QString siteFile(const std::string &key) const;

    /// The module that has a setting, be it without a default; null for an unknown key.
    [[nodiscard]] static olPreferencesEntry *moduleOf(const std::string &key);

    /// What a setting is; without a type where no module has it.
    [[nodiscard]] static olSettingDescription description(const std::string &key);

    /// Where the value in force comes from: "stored" by a person, from the "site", or the module's "default".
    [[nodiscard]] QString origin(const std::string &key) const;

    /// Why a setting may not be given the value, as what follows its key in a sentence: it is not known or locked, or
    /// the value is of another type, out of its range, none of its choices or too long. Empty where it may. What is
    /// by default, of the site or the module, always may.
    [[nodiscard]] QString whyNot(const std::string &key, const boost::any &value) const;

    /// The question that must be agreed to before the setting is given the value; nothing where there is none, or
    /// where the setting has the value already.
    [[nodiscard]] std::optional<olSettingWarning> warning(const std::string &key, const boost::any &value) const;

    /// Looks the store and the site's files through; changes nothing. Returns a sentence for each finding. Types and
    /// keys of the site's files are checked only when the modules' defaults are there.
    [[nodiscard]] QStringList check() const;

    /// Of all modules in order, each key once.
    [[nodiscard]] static std::vector<std::string> keys();

    [[nodiscard]] const QStringList &siteFiles() const { return m_siteFiles; }
    [[nodiscard]] olPreferencesStore &store() { return m_store; }

signals:
    /// Around the taking over in each module that has a setting another program, or a commit() besides its page,
    /// changed. In between its page is filled with the values in force.
    void aboutToTakeOver(olPreferencesEntry &entry);
    void tookOver(olPreferencesEntry &entry);

    /// There is something new among the notices.
    void noticed();

    /// After all that.
    void changedOutside(const std::vector<olOutsideChange> &changes);

    /// For a value that is not put into force before somebody agrees to it. Without an answer() this run goes on
    /// without it and leaves it in the store.
    void consentWanted(const olOutsideChange &change, const olSettingWarning &question);

private:
    [[nodiscard]] olPreferencesStore::Values toBeKept() const;
    [[nodiscard]] bool isChoice(const olPreferencesStore::Key &key, const boost::any &value) const;
    [[nodiscard]] std::vector<olOutsideChange> replaceStored(const olPreferencesStore::Values &stored);
    [[nodiscard]] bool isHeldBack(const olPreferencesStore::Key &key) const;
    void putIntoForce(const std::vector<olOutsideChange> &changes);
    void takeOverIn(olPreferencesEntry &entry, const std::set<std::string> &changed);
    void applyIn(olPreferencesEntry &entry, const std::set<std::string> &changed) const;
    [[nodiscard]] olSettingValues previewedOf(const olPreferencesEntry &entry) const;
    [[nodiscard]] std::vector<olStoreRows::Change> changesTo(const olPreferencesStore::Values &stored,
                                                             const olPreferencesStore::Values &kept) const;
    [[nodiscard]] bool isLocked(const std::string &key) const;
    olResult<> saveIntoMended(const olFailure &failure, const olPreferencesStore::Values &kept);
    void followSite();
    void tellOfFailure(const QString &module, const QString &reason);
    [[nodiscard]] bool takeBack(const std::vector<olPreferencesEntry *> &shown, const olSettingValues &besides) const;
    void restoreLocked() const;
    void keepEmptied() const;

    olPreferencesStore m_store;
    olPreferencesStore::Values m_stored;
    std::map<olPreferencesStore::Key, olOutsideChange> m_heldBack; ///< until somebody agrees to them
    std::set<std::string> m_chosen;
    std::set<std::string> m_restored;
    olSettingValues m_previewed;
    olSiteDefaults m_site;
    QStringList m_siteFiles;
    QStringList m_notices;
    olTranslations m_translations;
    olPluginLoader m_plugin;
    QTimer m_following;
    QStringList m_siteStamps;
    bool m_isChanging = false;
};
