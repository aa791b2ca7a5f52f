#include "Model/ModelSession.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "Support/CleanHost.h"
#include "olToolError.h"

#include <QBuffer>

#include <array>

namespace
{

constexpr auto forbidding = "ORLO_DISABLE_WEBINTERFACE";

struct Edition {
    olEdition edition;
    const char *name;
};
constexpr std::array<Edition, 4> editions{{{olEdition::Essentials, "essentials"},
                                           {olEdition::Design, "design"},
                                           {olEdition::Professional, "professional"},
                                           {olEdition::Enterprise, "enterprise"}}};

olMessage &record() { return olPreferencesRegistry::the().record(); }

/// Every module offers all of its keys, whatever became of them later. A list without a default is offered by none.
std::map<std::string, std::string> typesOf(olPreferencesEntry &entry)
{
    entry.setDefaults(true);
    std::map<std::string, std::string> types;
    for (const olOfferedDefault &offered : entry.defaults()) {
        types[offered.key] = olValue::typeName(offered.value);
        entry.removeValue(offered.key);
    }
    if (entry.name() == QLatin1String("FileIO"))
        types["texture search paths"] = "strings";
    return types;
}

} // namespace

ModelSession::ModelSession(unsigned seed, const QString &plugin, const QString &script)
    : m_lines(seed, m_modules),
      m_nowhere(std::fopen("/dev/null", "w")),
      m_script(script),
      m_session(QStringLiteral("/nowhere/preferences.db"), {})
{
    const Edition &edition = editions[std::size_t(m_lines.below(int(editions.size())))];
    const bool isForbidden = m_lines.below(8) == 0;
    if (!m_script.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw ModelFailure("cannot write " + script.toStdString());
    writeDown(QByteArray("# ") + (isForbidden ? "ORLO_DISABLE_WEBINTERFACE=1 " : "") + "orlo-prefs --edition " +
              edition.name + " script FILE");

    cleanHost();
    olHostState::the().edition = edition.edition;
    qunsetenv(forbidding);
    if (isForbidden)
        qputenv(forbidding, "1");
    const olResult<> loaded = m_session.loadPlugin(plugin);
    if (!loaded.isOk())
        throw ModelFailure(loaded.error().toStdString());
    m_runner = std::make_unique<olScriptRunner>(m_session, m_nowhere);
    for (olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        DrivenModule module{entry, entry->name().toStdString(), typesOf(*entry), {}};
        if (entry->page())
            module.controls = olPageIndex(*entry->page()).controls();
        m_modules.push_back(std::move(module));
    }
    olKernelServiceFactory::the<olPreferencesService>()->clear();
    olJournal::observe(this);
}

ModelSession::~ModelSession()
{
    olJournal::observe(nullptr);
    m_session.stop();
    m_runner.reset();
    std::fclose(m_nowhere);
}

void ModelSession::run(int lines)
{
    while (lines > 0) {
        const DrivenModule *module = nullptr;
        const QByteArray line = m_lines.next(module);
        const Values before = module ? valuesOf(*module) : Values();
        const std::size_t sizeBefore = record().entries().size();
        m_calls.clear();
        // What a user could not do is no operation.
        if (!carryOut(line))
            continue;
        --lines;
        if (!module)
            continue;
        check(line, *module, before);
        const bool isOfOne = line.startsWith("put") || line.startsWith("remove") || line.startsWith("defaults");
        if (!isOfOne && !line.startsWith("data") && record().entries().size() != sizeBefore)
            throw ModelFailure("keys came or went");
    }
    m_modules.clear();
    if (!carryOut("unload"))
        throw ModelFailure("the library is gone");
    for (const auto &entry : record().entries()) {
        if (entry.first != "Nobody's")
            throw ModelFailure("a key is left: " + entry.first);
    }
}

bool ModelSession::carryOut(const QByteArray &line)
{
    writeDown(line);
    QByteArray bytes = line;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    try {
        m_runner->run(buffer);
        return true;
    } catch (const olToolError &error) {
        m_script.seek(m_script.size() - line.size() - 1);
        m_script.resize(m_script.pos());
        return false;
    }
}

void ModelSession::writeDown(const QByteArray &line)
{
    m_script.write(line + '\n');
    m_script.flush();
}

ModelSession::Values ModelSession::valuesOf(const DrivenModule &module)
{
    Values values;
    for (const auto &setting : module.types)
        values[setting.first] = module.entry->value(setting.first);
    return values;
}

void ModelSession::check(const QByteArray &line, const DrivenModule &module, const Values &before)
{
    const bool mayCall = line.startsWith("apply") || line.startsWith("newscene");
    if (!mayCall && !m_calls.empty())
        throw ModelFailure("the host was called: " + m_calls.front());

    const bool isData = line.startsWith("data");
    const bool mayWrite = isData || line.contains("put ") || line.startsWith("remove") || line.startsWith("defaults");
    for (const auto &[key, value] : before) {
        if (!mayWrite && !olValue::identical(value, module.entry->value(key)))
            throw ModelFailure("the value of " + key + " changed");
    }
    if (isData)
        checkTypes(module);
}

void ModelSession::checkTypes(const DrivenModule &module) const
{
    for (const olPageControl &control : module.controls) {
        for (const QString &name : control.settingKeys) {
            const std::string key = name.toStdString();
            const std::string type = olValue::typeName(module.entry->value(key));
            const bool isEmptyList = key == "texture search paths" && type.empty();
            if (!isEmptyList && type != module.types.at(key))
                throw ModelFailure(key + " was taken back as " + (type.empty() ? "nothing" : type));
        }
    }
}
