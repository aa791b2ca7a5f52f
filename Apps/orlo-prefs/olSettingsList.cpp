#include "olSettingsList.h"

#include "Session/olModuleAccess.h"
#include "Session/olNumberText.h"
#include "Session/olPreferencesSession.h"
#include "Session/olRecordedSettings.h"
#include "Session/olSettingDescription.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olToolError.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace
{

const std::vector<olPreferencesEntry *> &entries() { return olPreferencesRegistry::the().entries(); }

std::string quoted(const QString &text) { return olValue::quoted(text.toStdString()); }

/// An object on one line, member by member.
class ObjectText
{
public:
    void add(const char *name, const std::string &json)
    {
        m_members += (m_members.empty() ? "" : ", ") + olValue::quoted(name) + ": " + json;
    }
    void add(const char *name, const QString &text)
    {
        if (!text.isEmpty())
            add(name, quoted(text));
    }
    void addNumber(const char *name, double number)
    {
        if (!std::isinf(number))
            add(name, olNumberText(number));
    }
    [[nodiscard]] std::string text() const { return '{' + m_members + '}'; }

private:
    std::string m_members;
};

std::string listText(const std::vector<std::string> &items)
{
    std::string text;
    for (const std::string &item : items)
        text += (text.empty() ? "" : ", ") + item;
    return '[' + text + ']';
}

std::string choicesJson(const std::vector<olSettingChoice> &choices)
{
    std::vector<std::string> items;
    for (const olSettingChoice &choice : choices) {
        ObjectText item;
        item.add("value", olValue::toJson(choice.value));
        item.add("text", quoted(choice.text));
        items.push_back(item.text());
    }
    return listText(items);
}

void addDescription(const olSettingDescription &setting, ObjectText &text)
{
    text.addNumber("minimum", setting.minimum);
    text.addNumber("maximum", setting.maximum);
    if (setting.decimals)
        text.add("decimals", std::to_string(*setting.decimals));
    text.add("unit", setting.unit);
    if (!setting.choices.empty())
        text.add("choices", choicesJson(setting.choices));
    text.add("effect", setting.effect);
    text.add("label", setting.label);
    text.add("tooltip", setting.toolTip);
    std::vector<std::string> path;
    for (const QString &caption : setting.captions)
        path.push_back(quoted(caption));
    text.add("path", listText(path));
}

std::string settingJson(const olPreferencesSession &session, const olPreferencesEntry &entry, const std::string &key)
{
    const olSettingDescription setting = olSettingDescription::of(entry, key);
    const olOfferedDefault *offered = entry.findDefault(key);
    ObjectText text;
    text.add("key", olValue::quoted(key));
    text.add("type", olValue::quoted(setting.type));
    text.add("default", olSettingsList::valueText(offered ? offered->value : boost::any()));
    text.add("value", olSettingsList::valueText(entry.value(key)));
    addDescription(setting, text);
    text.add("recorded", std::string(olIsOnlyRecorded(key) ? "true" : "false"));
    const std::optional<QString> reason = session.lockReason(key);
    text.add("locked", std::string(reason ? "true" : "false"));
    text.add("reason", reason.value_or(QString()));
    text.add("origin", session.origin(key));
    return text.text();
}

std::string moduleJson(const olPreferencesSession &session, const olPreferencesEntry &entry)
{
    std::string settings;
    const std::vector<std::string> keys = olSettingsList::keysOf(entry);
    for (const std::string &key : keys)
        settings += (settings.empty() ? "\n    " : ",\n    ") + settingJson(session, entry, key);
    return "{\"name\": " + quoted(entry.name()) + ", \"category\": " + quoted(entry.category()) +
           ", \"class\": " + olValue::quoted(entry.className()) + ", \"page\": " + (entry.page() ? "true" : "false") +
           ", \"settings\": [" + settings + "]}";
}

/// The columns of the table; the value is the last, as it may be of any length.
struct Widths {
    std::size_t key = 0;
    std::size_t type = 0;
};

Widths widths()
{
    Widths widths;
    for (const olPreferencesEntry *entry : entries()) {
        for (const olOfferedDefault &setting : entry->defaults()) {
            widths.key = std::max(widths.key, setting.key.size());
            widths.type = std::max(widths.type, olValue::typeName(setting.value).size());
        }
    }
    return widths;
}

std::string padded(std::string text, std::size_t width)
{
    text.resize(std::max(text.size(), width) + 2, ' ');
    return text;
}

std::string heading(const olPreferencesEntry &entry)
{
    const std::string category = entry.category().toStdString();
    return (category.empty() ? "" : category + " / ") + entry.name().toStdString() + '\n';
}

std::string row(const olPreferencesEntry &entry, const olOfferedDefault &setting, const Widths &widths)
{
    const boost::any value = entry.value(setting.key);
    std::string text = "  " + padded(setting.key, widths.key) + padded(olValue::typeName(setting.value), widths.type) +
                       olValue::toJson(value);
    if (!olValue::equal(value, setting.value))
        text +=
            "  " +
            olToolError::tr("(default %1)").arg(QString::fromStdString(olValue::toJson(setting.value))).toStdString();
    return text + '\n';
}

} // namespace

namespace olSettingsList
{

std::vector<std::string> keysOf(const olPreferencesEntry &entry)
{
    std::vector<std::string> keys;
    for (const olOfferedDefault &setting : entry.defaults())
        keys.push_back(setting.key);
    const std::vector<std::string> told = olModuleAccess(entry).keys();
    std::copy_if(told.begin(), told.end(), std::back_inserter(keys),
                 [&entry](const std::string &key) { return !entry.findDefault(key); });
    return keys;
}

std::string json(const olPreferencesSession &session)
{
    std::string modules;
    for (const olPreferencesEntry *entry : entries())
        modules += (modules.empty() ? "" : ",\n  ") + moduleJson(session, *entry);
    return '[' + modules + "]\n";
}

std::string table()
{
    const Widths columns = widths();
    std::string text;
    for (const olPreferencesEntry *entry : entries()) {
        text += heading(*entry);
        for (const olOfferedDefault &setting : entry->defaults())
            text += row(*entry, setting, columns);
    }
    return text;
}

std::string changes(const std::vector<olPreferencesImport::Change> &changes)
{
    std::size_t width = 0;
    for (const auto &change : changes)
        width = std::max(width, change.key.size());
    std::string text;
    for (const auto &change : changes)
        text += padded(change.key, width) + valueText(change.before) + " -> " + valueText(change.after) + '\n';
    return text;
}

std::string valueText(const boost::any &value) { return value.empty() ? "null" : olValue::toJson(value); }

} // namespace olSettingsList
