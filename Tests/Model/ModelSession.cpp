#include "Model/ModelSession.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
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

/// Leaves the host as it is at the start of a process.
void renewHost(olEdition edition)
{
    const olMessage::Entries left = record().entries();
    for (const auto &entry : left)
        record().remove(entry.first);
    olKernelServiceFactory::the<olPreferencesService>()->clear();
    olHostState::the().reset();
    olHostState::the().edition = edition;
}

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

/// The numbers in a call or a value as they are written, and the texts that RandomLines made up.
std::set<std::string> tokensIn(const std::string &text)
{
    std::set<std::string> tokens;
    const std::string digits = "0123456789.e+-";
    for (std::size_t at = 0; at < text.size();) {
        if (text.compare(at, 4, "text") == 0 && at + 4 < text.size() && std::isdigit(text[at + 4])) {
            const std::size_t end = text.find_first_not_of("0123456789", at + 4);
            tokens.insert(text.substr(at, end - at));
            at = std::min(end, text.size());
        } else if (std::isdigit(text[at]) || (text[at] == '-' && at + 1 < text.size() && std::isdigit(text[at + 1]))) {
            const std::size_t end = std::min(text.find_first_not_of(digits, at + 1), text.size());
            tokens.insert(text.substr(at, end - at));
            at = end;
        } else if (std::isalpha(text[at])) {
            at = std::min(text.find_first_of(" (),[]\"=", at), text.size());
        } else {
            ++at;
        }
    }
    return tokens;
}

/// Numbers that are choices, switches or counts and may come from a rule instead of a setting.
bool isPlain(const std::string &token)
{
    char *end = nullptr;
    const double number = std::strtod(token.c_str(), &end);
    return *end == '\0' && number == int(number) && number >= -1 && number <= 16;
}

std::string listed(const GuardModel::Calls &calls)
{
    std::string text;
    for (const std::string &call : calls)
        text.append("\n  ").append(call);
    return text;
}

/// Of all that the host can be asked for.
std::set<std::string> liveTokens()
{
    std::set<std::string> tokens;
    for (const olHostValueBase *value : olHostState::the().values()) {
        if (value->isFact())
            tokens.merge(tokensIn(olValue::toJson(value->any())));
    }
    return tokens;
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
    m_model = std::make_unique<GuardModel>(isForbidden);
    if (!m_script.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw ModelFailure("cannot write " + script.toStdString());
    writeDown(QByteArray("# ") + (isForbidden ? "ORLO_DISABLE_WEBINTERFACE=1 " : "") + "orlo-prefs --edition " +
              edition.name + " script FILE");

    renewHost(edition.edition);
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
        const GuardModel::Calls expected =
            module && GuardModel::knows(module->name) ? m_model->apply(module->name, record()) : GuardModel::Calls();
        m_calls.clear();
        if (line.startsWith("apply") || line.startsWith("newscene"))
            m_liveBefore = liveTokens();
        // What a user could not do is no operation.
        if (!carryOut(line))
            continue;
        --lines;
        if (!module)
            continue;
        if (line.startsWith("apply") && GuardModel::knows(module->name) && m_calls != expected) {
            throw ModelFailure("the model has other calls:" + listed(expected) + "\ninstead of:" + listed(m_calls));
        }
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
    if (mayCall)
        checkOrigins(module);

    const bool isData = line.startsWith("data");
    const bool mayWrite = isData || line.contains("put ") || line.startsWith("remove") || line.startsWith("defaults");
    if (!mayWrite || isData) {
        for (const auto &[key, value] : before) {
            const boost::any after = module.entry->value(key);
            if (!mayWrite && !olValue::identical(value, after))
                throw ModelFailure("the value of " + key + " changed");
            if (isData && GuardModel::knows(module.name))
                m_model->taken(key, olValue::equal(value, after));
        }
    }
    if (isData)
        checkTypes(module);
    if (line.startsWith("settled")) {
        std::vector<std::string> keys;
        for (const auto &setting : module.types)
            keys.push_back(setting.first);
        m_model->settled(keys);
    }
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

/// Whatever number or text a call names must be that of a setting of the module, in the setting's own type, or of the
/// host itself.
void ModelSession::checkOrigins(const DrivenModule &module)
{
    std::set<std::string> known;
    for (const auto &[key, type] : module.types) {
        const boost::any value = module.entry->value(key);
        if (olValue::typeName(value) == type)
            known.merge(tokensIn(olValue::toJson(value)));
    }
    for (const olOfferedDefault &offered : module.entry->defaults())
        known.merge(tokensIn(olValue::toJson(offered.value)));
    // The formats keep what they could read last.
    std::set<std::string> &readBefore = m_readBefore[module.name];
    if (module.entry->category() == QLatin1String("FileIO"))
        readBefore.insert(known.begin(), known.end());

    for (const std::string &call : m_calls) {
        for (const std::string &token : tokensIn(call.substr(call.rfind("::") + 2))) {
            if (isPlain(token) || known.count(token) != 0 || m_liveBefore.count(token) != 0)
                continue;
            if (call.find("olImportOptions") == 0 && readBefore.count(token) != 0)
                continue;
            throw ModelFailure("nobody knows where this comes from: " + listed({token, call}));
        }
    }
}
