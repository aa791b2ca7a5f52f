#include "KernelServices/olPreferencesCategory.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olModuleEntry.h"

namespace
{

olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }

/// A module whose values live in the preferences service.
class ServiceEntry : public olModuleEntry<olPreferencesCategory>
{
public:
    using olModuleEntry::olModuleEntry;

    void markClean() override { service().markClean(); }

    [[nodiscard]] olHome home() const override { return olHome::Service; }
    [[nodiscard]] boost::any value(const std::string &key) const override { return service().get(key); }
    void setValue(const std::string &key, const boost::any &value) override { service().set(key, value); }
    void removeValue(const std::string &key) override { service().remove(key); }

    void setChanged(const std::string &key, bool changed) override { service().setChanged(key, changed); }
};

} // namespace

olPreferencesCategory::olPreferencesCategory(QString name) : m_name(std::move(name)) {}

olPreferencesCategory::~olPreferencesCategory() = default;

void olPreferencesCategory::registerCategory()
{
    if (!m_entry)
        m_entry = std::make_unique<ServiceEntry>(*this, m_name, QString());
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
