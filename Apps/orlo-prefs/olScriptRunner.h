#pragma once

#include "olModalAnswers.h"
#include "olScratchSettings.h"
#include "olScriptParser.h"
#include "olTranscript.h"

#include <QByteArray>
#include <boost/any.hpp>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

class QIODevice;
class QWidget;
class olPreferencesEntry;
class olPreferencesSession;

/// Drives a session whose plug-in is loaded, one line of a script after the other, and prints what the host would
/// notice of it.
class olScriptRunner
{
public:
    /// The session must outlive the runner.
    olScriptRunner(olPreferencesSession &session, std::FILE *out);

    /// Runs up to the end or the first line that cannot be carried out; then throws olToolError with the line's number.
    void run(QIODevice &script);

private:
    struct Command {
        const char *name;
        const char *usage;
        void (olScriptRunner::*run)(olScriptParser &);
    };

    /// A control of a page, and how the line named it.
    struct Target {
        QWidget *control;
        QWidget *page;
        QByteArray written;
    };

    [[nodiscard]] static const std::vector<Command> &commands();
    void runLine(const QByteArray &text);

    void defaults(olScriptParser &line);
    /// The operation of one module, or of all.
    template <auto operation> void forModules(olScriptParser &line);
    void put(olScriptParser &line);
    void remove(olScriptParser &line);
    void get(olScriptParser &line);
    void service(olScriptParser &line);
    void edit(olScriptParser &line);
    void click(olScriptParser &line);
    void select(olScriptParser &line);
    void show(olScriptParser &line);
    void answer(olScriptParser &line);
    void host(olScriptParser &line);
    void env(olScriptParser &line);
    void appSetting(olScriptParser &line);
    void unload(olScriptParser &line);

    [[nodiscard]] std::vector<olPreferencesEntry *> modules(const std::optional<olScriptWord> &name) const;
    void requireLibrary() const;
    [[nodiscard]] Target target(olScriptParser &line) const;
    [[nodiscard]] Target usableTarget(olScriptParser &line) const;
    void printValue(const std::string &key, const boost::any &value);

    olPreferencesSession &m_session;
    olScratchSettings m_settings;
    olTranscript m_transcript;
    olModalAnswers m_answers;
};
