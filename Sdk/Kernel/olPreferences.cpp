#include "Kernel/olPreferences.h"

#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QObject>
#include <boost/core/demangle.hpp>

#include <set>
#include <string>
#include <typeinfo>

namespace
{

/// A module whose values live in the shared record.
class RecordEntry : public olPreferencesEntry
{
public:
    RecordEntry(olPreferences &module, const QString &name, const QString &category)
        : olPreferencesEntry(name, category), m_module(module)
    {
    }

    [[nodiscard]] std::string className() const override { return boost::core::demangle(typeid(m_module).name()); }
    [[nodiscard]] QObject *object() const override { return dynamic_cast<QObject *>(&m_module); }

    void applyPreferences() override { m_module.applyPreferences(); }
    void updateGUI() override { m_module.updateGUI(); }
    void updateData() override { m_module.updateData(); }
    void preferencesNewScene() override { m_module.preferencesNewScene(record()); }
    void preferencesLoaded() override { m_module.preferencesLoaded(record()); }
    void preferencesInitialApply() override { m_module.preferencesInitialApply(record()); }
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

protected:
    void writeDefaults(bool flag) override { m_module.setDefaults(record(), flag); }

private:
    static olMessage &record() { return olPreferencesRegistry::the().record(); }

    olPreferences &m_module;
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
