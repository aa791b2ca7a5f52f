// The commands that look back on what was changed, and take it back.

#include "Session/olUndo.h"
#include "State/olValue.h"
#include "olKnownSettings.h"
#include "olPrefsCommands.h"
#include "olPrefsTool.h"
#include "olSettingsList.h"
#include "olToolError.h"

#include <QDateTime>

#include <algorithm>
#include <cstdio>
#include <iterator>

using namespace olStoreRows;

namespace
{

std::string text(const std::optional<Row> &row) { return row ? row->value : olToolError::tr("default").toStdString(); }

std::string json(const std::optional<Row> &row)
{
    return row ? R"({"type": )" + olValue::quoted(row->type) + R"(, "value": )" + row->value + '}' : "null";
}

std::string json(const Save &save)
{
    std::string changes;
    for (const Change &change : save.changes) {
        changes += (changes.empty() ? "\n    " : ",\n    ") + (R"({"key": )" + olValue::quoted(change.key.second)) +
                   R"(, "home": )" + olValue::quoted(nameOf(change.key.first)) + R"(, "before": )" +
                   json(change.before) + R"(, "after": )" + json(change.after) + '}';
    }
    return R"({"number": )" + std::to_string(save.number) + R"(, "time": )" + olValue::quoted(save.time) +
           R"(, "program": )" + olValue::quoted(save.program) + R"(, "changes": [)" + changes + "]}";
}

std::string lines(const Save &save, int back)
{
    const QDateTime time = QDateTime::fromString(QString::fromStdString(save.time), Qt::ISODateWithMs).toLocalTime();
    std::string text = std::to_string(back) + "  " +
                       time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")).toStdString() + "  " + save.program + '\n';
    for (const Change &change : save.changes)
        text += "    " + change.key.second + "  " + ::text(change.before) + " -> " + ::text(change.after) + '\n';
    return text;
}

/// Only what it changed of the setting.
Save onlyOf(const std::string &key, Save save)
{
    save.changes.erase(std::remove_if(save.changes.begin(), save.changes.end(),
                                      [&key](const Change &change) { return change.key.second != key; }),
                       save.changes.end());
    return save;
}

olUndo undoOf(olPrefsTool &tool, int saves)
{
    const olResult<olUndo> undo = olUndo::of(tool.session(), std::size_t(saves));
    if (!undo.isOk())
        throw olToolError(undo.error());
    return *undo;
}

} // namespace

void olPrefsCommands::log(olPrefsTool &tool)
{
    QStringList arguments = tool.arguments();
    const bool isJson = arguments.removeOne(QStringLiteral("--json"));
    if (arguments.size() > 1)
        tool.failUsage();
    tool.loadStore(olStoreUse::LookAt);
    const olUndo undo = undoOf(tool, 0);
    std::string text;
    int back = 0;
    for (auto save = undo.history().rbegin(); save != undo.history().rend(); ++save) {
        const Save told = arguments.isEmpty() ? *save : onlyOf(arguments.first().toStdString(), *save);
        ++back;
        if (!told.changes.empty())
            text += isJson ? (text.empty() ? "" : ",\n  ") + json(told) : lines(told, back);
    }
    if (text.empty() && !arguments.isEmpty()) {
        // A setting that nobody changed, or none at all.
        tool.loadPlugin();
        tool.fillDefaults();
        (void)olKnownSettings().named(arguments.first());
    }
    tool.print(isJson ? '[' + text + "]\n" : text);
}

void olPrefsCommands::undo(olPrefsTool &tool)
{
    QStringList arguments = tool.arguments();
    const bool isDryRun = arguments.removeOne(QStringLiteral("--dry-run"));
    bool isNumber = true;
    const int count = arguments.isEmpty() ? 1 : arguments.first().toInt(&isNumber);
    if (arguments.size() > 1 || !isNumber || count < 1)
        tool.failUsage();
    tool.open(isDryRun ? olStoreUse::LookAt : olStoreUse::Own);
    olUndo undo = undoOf(tool, count);
    if (undo.history().size() < std::size_t(count))
        throw olToolError(
            olToolError::tr("%1 saves cannot be taken back: there are only %2").arg(count).arg(undo.history().size()));
    const auto shown = [&undo](const Change &change) {
        return olPreferencesImport::Change{change.key.second, undo.value(change.key, change.before),
                                           undo.value(change.key, change.after)};
    };
    for (const Change &change : undo.changes()) {
        if (const auto warning = tool.session().warning(change.key.second, shown(change).after))
            tool.requireConsent(change.key.second, *warning);
    }
    if (!isDryRun)
        olPrefsTool::requireSuccess(undo.save());
    std::vector<olPreferencesImport::Change> changes;
    std::transform(undo.changes().begin(), undo.changes().end(), std::back_inserter(changes), shown);
    tool.print(olSettingsList::changes(changes));
    for (const olSkippedSetting &left : undo.left())
        std::fprintf(stderr, "%s\n",
                     qPrintable(olToolError::tr("left: \"%1\" %2").arg(QString::fromStdString(left.key), left.reason)));
    if (!undo.left().empty())
        throw olToolError(olToolError::tr("Some settings were left as they are."), 1);
}
