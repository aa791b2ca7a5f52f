#pragma once

#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QObject>
#include <boost/core/demangle.hpp>

#include <string>
#include <typeinfo>

/// What is the same of both kinds of module. An exception out of a module ends with what it was asked for here.
template <class Module> class olModuleEntry : public olPreferencesEntry
{
public:
    olModuleEntry(Module &module, const QString &name, const QString &category)
        : olPreferencesEntry(name, category), m_module(module)
    {
    }

    [[nodiscard]] std::string className() const override { return boost::core::demangle(typeid(m_module).name()); }
    [[nodiscard]] QObject *object() const override { return dynamic_cast<QObject *>(&m_module); }

    void applyPreferences() override
    {
        guarded([this] { m_module.applyPreferences(); });
    }
    void updateGUI() override
    {
        guarded([this] { m_module.updateGUI(); });
    }
    bool updateData() override
    {
        return guarded([this] { m_module.updateData(); });
    }
    void preferencesNewScene() override
    {
        guarded([this] { m_module.preferencesNewScene(record()); });
    }
    void preferencesLoaded() override
    {
        guarded([this] { m_module.preferencesLoaded(record()); });
    }
    void preferencesInitialApply() override
    {
        guarded([this] { m_module.preferencesInitialApply(record()); });
    }

protected:
    static olMessage &record() { return olPreferencesRegistry::the().record(); }
    void writeDefaults(bool flag) override
    {
        guarded([&] { m_module.setDefaults(record(), flag); });
    }

private:
    Module &m_module;
};
