#pragma once

#include <QByteArray>
#include <QString>

#include <boost/any.hpp>

#include <optional>
#include <string>

/// A word of a script: what it says, how it was written, and whether in quotes.
struct olScriptWord {
    QString text;
    QByteArray written;
    bool quoted = false;
};

/// A value of a script: JSON, as it was written. What it is asked for and is not gives nothing.
struct olScriptValue {
    QByteArray written;

    /// Of that type of setting.
    [[nodiscard]] boost::any as(const std::string &type) const;
    [[nodiscard]] std::optional<bool> boolean() const;
    [[nodiscard]] std::optional<double> number() const;
    [[nodiscard]] std::optional<QString> text() const;
};

/// Takes one line of a script apart, from left to right. Every function throws olToolError where the line does not
/// hold what is asked for.
class olScriptParser
{
public:
    explicit olScriptParser(const QByteArray &line);

    /// What messages about the line say it should look like.
    void setUsage(const char *usage) { m_usage = usage; }

    [[nodiscard]] bool atEnd() const { return m_position >= m_line.size(); }

    /// The next word; `what` names it in messages.
    [[nodiscard]] olScriptWord word(const char *what);

    /// The rest of the line.
    [[nodiscard]] olScriptValue value();

    /// Nothing more may follow.
    void end() const;

    /// The message with the line's usage.
    [[noreturn]] void fail(const QString &why) const;

private:
    void skipBlanks();
    [[nodiscard]] olScriptWord quotedWord();

    QByteArray m_line;
    int m_position = 0;
    const char *m_usage = nullptr;
};
