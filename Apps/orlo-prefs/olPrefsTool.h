#pragma once

#include "Session/olPreferencesSession.h"
#include "State/olResult.h"
#include "olModalAnswers.h"
#include "olPrefsOptions.h"
#include "olToolError.h"

#include <QStringList>

#include <optional>
#include <string>

struct olPrefsCommand;

/// One run of the tool: finds the command, and has for all commands the session that they work on. What fails throws
/// olToolError.
class olPrefsTool
{
public:
    explicit olPrefsTool(const olPrefsOptions &options);

    /// Returns the program's exit status.
    [[nodiscard]] int run();

    /// Of the command, or of the tool where none is given.
    void printHelp();

    /// Of a command that did what it was asked for.
    void setStatus(int status) { m_status = status; }

    [[nodiscard]] const olPrefsOptions &options() const { return m_options; }
    [[nodiscard]] olPreferencesSession &session() { return m_session; }

    /// Of the command.
    [[nodiscard]] const QStringList &arguments() const { return m_options.arguments; }
    void requireArguments(int count) const;

    /// Ends the command with the line that says how it is used.
    [[noreturn]] void failUsage() const;

    /// Loads the store alone.
    void loadStore(olStoreUse use);
    void loadPlugin();

    /// Lets the modules fill the gaps; no box that one of them opens is waited for from here on.
    void fillDefaults();

    /// All three: what nearly every command begins with.
    void open(olStoreUse use);

    /// Fails with the question that goes with a setting's new value, unless the user agreed to such beforehand.
    void requireConsent(const std::string &key, const olSettingWarning &warning) const;

    /// Stores what changed, and tells what there is to tell.
    void save();

    /// Throws the reason where something failed.
    template <class T> static void requireSuccess(const olResult<T> &result)
    {
        if (!result.isOk())
            throw olToolError(result.error());
    }

    /// To the standard output stream, and complains when that cannot take it.
    static void print(const std::string &text);

private:
    /// Programs and scripts go by the English texts, whatever language is asked for.
    [[nodiscard]] bool isForPeople() const;

    /// They are in the language that is stored.
    [[nodiscard]] bool isOfUser() const { return m_options.language == QLatin1String(olPrefsOptions::ofUser); }

    void printNotices();

    olPrefsOptions m_options;
    const olPrefsCommand *m_command = nullptr;
    int m_status = 0;
    olPreferencesSession m_session;
    std::optional<olModalAnswers> m_silent;
};
