#include "Support/PluginTest.h"

#include "State/olHostState.h"
#include "State/olPreferencesRegistry.h"
#include "Support/CleanHost.h"

#include <stdexcept>

QString pluginUnderTest() { return qEnvironmentVariable("ORLO_TEST_PLUGIN", QStringLiteral(ORLO_PLUGIN_FILE)); }

QString sourceOfTest(const QString &file)
{
    return qEnvironmentVariable("ORLO_TEST_SOURCE", QStringLiteral(ORLO_SOURCE_DIR)) + QLatin1Char('/') + file;
}

PluginTest::PluginTest(olEdition edition) { restart(edition); }

PluginTest::~PluginTest() { plugin.unload(); }

void PluginTest::restart(olEdition edition)
{
    plugin.unload();
    cleanHost();
    olHostState::the().edition = edition;

    const olResult<> loaded = plugin.load(pluginUnderTest());
    if (!loaded.isOk())
        throw std::runtime_error(loaded.error().toStdString());
    calls.take();
}

olMessage &PluginTest::record() { return olPreferencesRegistry::the().record(); }

olPreferencesEntry &PluginTest::module(const char *name)
{
    olPreferencesEntry *entry = olPreferencesRegistry::the().find(QString::fromUtf8(name));
    if (!entry)
        throw std::runtime_error(std::string("no module ") + name);
    return *entry;
}

const std::vector<olPreferencesEntry *> &PluginTest::modules() { return olPreferencesRegistry::the().entries(); }

void PluginTest::apply(const char *moduleName, const char *key, const boost::any &value)
{
    olPreferencesEntry &entry = module(moduleName);
    entry.setValue(key, value);
    entry.setChanged(key, true);
    entry.applyPreferences();
    entry.markClean();
}
