#include "olScriptParser.h"

#include "State/olJsonText.h"
#include "State/olValue.h"
#include "olToolError.h"

namespace
{

bool isBlank(char character) { return character == ' ' || character == '\t'; }

QByteArray withoutComment(const QByteArray &line)
{
    bool quoted = false;
    for (int index = 0; index < line.size(); ++index) {
        const char character = line.at(index);
        if (character == '#' && !quoted)
            return line.left(index).trimmed();
        if (character == '\\' && quoted)
            ++index;
        else if (character == '"')
            quoted = !quoted;
    }
    return line.trimmed();
}

template <class T> std::optional<T> valueAs(const olScriptValue &script, const char *type)
{
    const boost::any any = script.as(type);
    const T *value = boost::any_cast<T>(&any);
    return value ? std::optional<T>(*value) : std::nullopt;
}

} // namespace

boost::any olScriptValue::as(const std::string &type) const { return olValue::fromJson(type, written); }

std::optional<bool> olScriptValue::boolean() const { return valueAs<bool>(*this, "bool"); }

// The texts that stand for numbers in settings are texts here.
std::optional<double> olScriptValue::number() const { return text() ? std::nullopt : valueAs<double>(*this, "double"); }

std::optional<QString> olScriptValue::text() const { return valueAs<QString>(*this, "qstring"); }

olScriptParser::olScriptParser(const QByteArray &line) : m_line(withoutComment(line)) {}

olScriptWord olScriptParser::word(const char *what)
{
    if (atEnd())
        fail(olToolError::tr("%1 is missing").arg(QLatin1String(what)));
    olScriptWord word;
    if (m_line.at(m_position) == '"') {
        word = quotedWord();
    } else {
        const int start = m_position;
        while (!atEnd() && !isBlank(m_line.at(m_position)))
            ++m_position;
        word.written = m_line.mid(start, m_position - start);
        if (word.written.contains('"'))
            fail(olToolError::tr("a quote stands within the word %1").arg(QString::fromUtf8(word.written)));
        word.text = QString::fromUtf8(word.written);
    }
    skipBlanks();
    return word;
}

olScriptWord olScriptParser::quotedWord()
{
    const int start = m_position++;
    QByteArray text;
    for (; !atEnd() && m_line.at(m_position) != '"'; ++m_position) {
        const char next = m_position + 1 < m_line.size() ? m_line.at(m_position + 1) : '\0';
        // Only these two are escapes, so that a path with backslashes need not double them all.
        if (m_line.at(m_position) == '\\' && (next == '"' || next == '\\'))
            ++m_position;
        text += m_line.at(m_position);
    }
    if (atEnd())
        fail(olToolError::tr("a quote is not closed"));
    ++m_position;
    if (!atEnd() && !isBlank(m_line.at(m_position)))
        fail(olToolError::tr("a blank is missing behind \"%1\"").arg(QString::fromUtf8(text)));
    return {QString::fromUtf8(text), m_line.mid(start, m_position - start), true};
}

olScriptValue olScriptParser::value()
{
    if (atEnd())
        fail(olToolError::tr("VALUE is missing"));
    const QByteArray written = m_line.mid(m_position);
    m_position = m_line.size();
    olJsonReader json({written.constData(), std::size_t(written.size())});
    if (!json.value() || !json.atEnd())
        fail(olToolError::tr("%1 is no JSON value").arg(QString::fromUtf8(written)));
    return {written};
}

void olScriptParser::end() const
{
    if (!atEnd())
        fail(olToolError::tr("\"%1\" is too much").arg(QString::fromUtf8(m_line.mid(m_position))));
}

void olScriptParser::fail(const QString &why) const
{
    if (!m_usage)
        throw olToolError(why);
    throw olToolError(olToolError::tr("%1; usage: %2").arg(why, QLatin1String(m_usage)));
}

void olScriptParser::skipBlanks()
{
    while (!atEnd() && isBlank(m_line.at(m_position)))
        ++m_position;
}
