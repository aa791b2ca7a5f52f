#pragma once

#include "Model/RandomLines.h"
#include "Session/olPreferencesSession.h"
#include "State/olEdition.h"
#include "State/olJournal.h"
#include "olScriptRunner.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <boost/any.hpp>

#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// What should never have come about.
class ModelFailure : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// One load of the plug-in driven by random lines, with everything checked that must hold after each. The lines that
/// were carried out stand in a script at any moment, so that it is there after a crash too.
class ModelSession : private olJournalObserver
{
public:
    ModelSession(unsigned seed, const QString &plugin, const QString &script);
    ~ModelSession() override;

    /// Carries that many lines out and unloads. Throws ModelFailure.
    void run(int lines);

private:
    using Values = std::map<std::string, boost::any>;

    void called(const std::string &call) override { m_calls.push_back(call); }
    [[nodiscard]] bool carryOut(const QByteArray &line);
    void writeDown(const QByteArray &line);
    void check(const QByteArray &line, const DrivenModule &module, const Values &before);
    void checkTypes(const DrivenModule &module) const;
    [[nodiscard]] static Values valuesOf(const DrivenModule &module);

    RandomLines m_lines;
    std::vector<DrivenModule> m_modules;
    std::FILE *m_nowhere;
    QFile m_script;
    olPreferencesSession m_session;
    std::unique_ptr<olScriptRunner> m_runner;
    std::vector<std::string> m_calls;
};
