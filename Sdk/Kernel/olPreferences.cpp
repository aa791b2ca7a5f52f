#include "Kernel/olPreferences.h"

#include "State/olModuleEntry.h"
#include "State/olPreferencesRegistry.h"

#include <set>
#include <string>

namespace
{

/// A module whose values live in the shared record.
class RecordEntry : public olModuleEntry<olPreferences>
{
public:
    using olModuleEntry::olModuleEntry;

    void markClean() override { unchanged.clear(); }

    [[nodiscard]] olHome home() const override { return olHome::Record; }
    [[nodiscard]] boost::any value(const std::string &key) const override { return record().get(key); }
    void setValue(const std::string &key, const boost::any &value) override { record().set(key, value, true); }
    void removeValue(const std::string &key) override { record().remove(key); }

    void setChanged(const std::string &key, bool changed) override
    {
        if (changed)
            unchanged.erase(key);
        else
            unchanged.insert(key);
    }

    /// What the module reported since the last markClean().
    std::set<std::string> unchanged;
};

std::set<std::string> &unchangedOf(olPreferencesEntry &entry) { return static_cast<RecordEntry &>(entry).unchanged; }

} // namespace

olPreferences::olPreferences(const QString &name, const QString &category)
    : m_entry(std::make_unique<RecordEntry>(*this, name, category))
{
}

olPreferences::~olPreferences() = default;

void olPreferences::preferencesNewScene(olMessage &) {}

void olPreferences::preferencesLoaded(olMessage &) {}

void olPreferences::preferencesInitialApply(olMessage &) { applyPreferences(); }

void olPreferences::addPreferencesGUI(QWidget *page) { m_entry->addPage(page); }

void olPreferences::subPreferencesGUI(QWidget *page) { m_entry->subPage(page); }

void olPreferences::addUnchanged(const char *key) { unchangedOf(*m_entry).insert(key); }

bool olPreferences::isChanged(const char *key) const { return unchangedOf(*m_entry).count(key) == 0; }

olMessage &olPreferences::getData() { return olPreferencesRegistry::the().record(); }
