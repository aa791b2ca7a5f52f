#include "olSettingsList.h"

#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"

#include <algorithm>

namespace
{

const std::vector<olPreferencesEntry *> &entries() { return olPreferencesRegistry::the().entries(); }

std::string quoted(const QString &text) { return olValue::quoted(text.toStdString()); }

std::string settingJson(const olPreferencesEntry &entry, const olOfferedDefault &setting)
{
    return "{\"key\": " + olValue::quoted(setting.key) +
           ", \"type\": " + olValue::quoted(olValue::typeName(setting.value)) +
           ", \"default\": " + olValue::toJson(setting.value) +
           ", \"value\": " + olValue::toJson(entry.value(setting.key)) + '}';
}

std::string moduleJson(const olPreferencesEntry &entry)
{
    std::string settings;
    for (const olOfferedDefault &setting : entry.defaults())
        settings += (settings.empty() ? "\n    " : ",\n    ") + settingJson(entry, setting);
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
        text += "  (default " + olValue::toJson(setting.value) + ')';
    return text + '\n';
}

} // namespace

namespace olSettingsList
{

std::string json()
{
    std::string modules;
    for (const olPreferencesEntry *entry : entries())
        modules += (modules.empty() ? "" : ",\n  ") + moduleJson(*entry);
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
