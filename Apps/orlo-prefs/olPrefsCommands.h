#pragma once

#include <QString>

class olPrefsTool;

/// A command of the tool as the user finds it.
struct olPrefsCommand {
    const char *name;
    const char *usage;   ///< the command and its arguments
    const char *summary; ///< for the list of all, to be translated
    const char *details; ///< what its own help says besides, to be translated
    void (*run)(olPrefsTool &);
};

/// All commands. Each ends with an olToolError where it cannot do what it says.
namespace olPrefsCommands
{

/// Throws olToolError where there is none of that name.
[[nodiscard]] const olPrefsCommand &named(const QString &name);

/// The help of the tool, and that of one command.
[[nodiscard]] QString help();
[[nodiscard]] QString help(const olPrefsCommand &command);

void list(olPrefsTool &tool);
void get(olPrefsTool &tool);
void diff(olPrefsTool &tool);
void schema(olPrefsTool &tool);
void set(olPrefsTool &tool);
void reset(olPrefsTool &tool);
void exportTo(olPrefsTool &tool);
void importFrom(olPrefsTool &tool);
void profile(olPrefsTool &tool);
void log(olPrefsTool &tool);
void undo(olPrefsTool &tool);
void check(olPrefsTool &tool);
void script(olPrefsTool &tool);

} // namespace olPrefsCommands
