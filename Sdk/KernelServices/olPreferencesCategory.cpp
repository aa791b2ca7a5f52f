#include "KernelServices/olPreferencesCategory.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QObject>
#include <boost/core/demangle.hpp>

#include <typeinfo>

namespace
{

olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }

/// A module whose values live in the preferences service.
class ServiceEntry : public olPreferencesEntry
{
public:
    ServiceEntry(olPreferencesCategory &module, const QString &name)
        : olPreferencesEntry(name, QString()), m_module(module)
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
    void markClean() override { service().markClean(); }

    [[nodiscard]] olHome home() const override { return olHome::Service; }
    [[nodiscard]] boost::any value(const std::string &key) const override { return service().get(key); }
    void setValue(const std::string &key, const boost::any &value) override { service().set(key, value); }
    void removeValue(const std::string &key) override { service().remove(key); }

    void setChanged(const std::string &key, bool changed) override { service().setChanged(key, changed); }

protected:
    void writeDefaults(bool flag) override { m_module.setDefaults(record(), flag); }

private:
    static olMessage &record() { return olPreferencesRegistry::the().record(); }

    olPreferencesCategory &m_module;
};

} // namespace

olPreferencesCategory::olPreferencesCategory(QString name) : m_name(std::move(name)) {}

olPreferencesCategory::~olPreferencesCategory() = default;

void olPreferencesCategory::registerCategory()
{
    if (!m_entry)
        m_entry = std::make_unique<ServiceEntry>(*this, m_name);
}

void olPreferencesCategory::preferencesNewScene(olMessage &) {}

void olPreferencesCategory::preferencesLoaded(olMessage &) {}

void olPreferencesCategory::preferencesInitialApply(olMessage &) { applyPreferences(); }

void olPreferencesCategory::addPreferencesGUI(QWidget *page)
{
    if (m_entry)
        m_entry->addPage(page);
}

void olPreferencesCategory::subPreferencesGUI(QWidget *page)
{
    if (m_entry)
        m_entry->subPage(page);
}

bool olPreferencesCategory::isChanged(const char *key) const { return service().isChanged(key); }
