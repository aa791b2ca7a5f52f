#include "Session/olJsonObject.h"

#include "State/olJsonText.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cstddef>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olJsonObject)
};

/// Counts the lines of a text, in one walk along it.
class Lines
{
public:
    Lines(std::string_view text, int first) : m_text(text), m_line(first) {}

    int at(std::size_t position)
    {
        const std::string_view passed = m_text.substr(m_position, position - m_position);
        m_line += int(std::count(passed.begin(), passed.end(), '\n'));
        m_position = position;
        return m_line;
    }

private:
    std::string_view m_text;
    int m_line;
    std::size_t m_position = 0;
};

} // namespace

std::optional<olJsonFault> olReadObject(std::string_view text, int firstLine, std::vector<olJsonMember> &members)
{
    olJsonReader json(text);
    Lines lines(text, firstLine);
    const auto here = [&] { return lines.at(json.position()); };
    const auto noJson = [&] { return olJsonFault{here(), Words::tr("here or just before, this is no JSON")}; };
    if (!json.take("{"))
        return olJsonFault{here(), Words::tr("an object is expected, as {\"key\": {\"value\": 1}}")};
    QSet<QString> keys;
    bool isDone = json.take("}");
    while (!isDone) {
        const auto key = json.text();
        const int line = here();
        if (!key || !json.take(":"))
            return noJson();
        const auto value = json.value();
        if (!value)
            return noJson();
        if (keys.contains(*key))
            return olJsonFault{line, Words::tr("\"%1\" stands here a second time").arg(*key)};
        keys.insert(*key);
        members.push_back({*key, line, *value});
        isDone = !json.take(",");
        if (isDone && !json.take("}"))
            return noJson();
    }
    return json.atEnd() ? std::nullopt : std::optional<olJsonFault>(noJson());
}
