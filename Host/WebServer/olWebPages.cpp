#include "WebServer/olWebPages.h"

#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olHostSettings.h"

#include <OpenSG/OSGColor.h>
#include <QCoreApplication>
#include <QString>
#include <boost/any.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace
{

// An answer is made in one go while the interface waits: what would take longer than a frame is refused.
constexpr std::size_t maxRows = 5000;
constexpr std::size_t maxSize = std::size_t(1) << 20;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olWebPages)
};

template <class Text> std::size_t lengthOf(const Text *text) { return text ? std::size_t(text->size()) : 0; }

/// At least how long its text is, told without making that.
std::size_t leastLength(const boost::any &value)
{
    std::size_t length = lengthOf(boost::any_cast<QString>(&value)) + lengthOf(boost::any_cast<std::string>(&value)) +
                         lengthOf(boost::any_cast<std::vector<float>>(&value)) +
                         lengthOf(boost::any_cast<std::vector<osg::Color3f>>(&value));
    if (const auto *texts = boost::any_cast<std::vector<std::string>>(&value)) {
        for (const std::string &text : *texts)
            length += text.size() + 1;
    }
    return length;
}

/// What may be told, while there is not too much of it.
class Values
{
public:
    void add(const std::string &key, const boost::any &value)
    {
        if (olValue::typeName(value).empty() || olHostSettings::isConfidential(key))
            return;
        m_length += leastLength(value);
        if (!isTooLarge())
            m_values[key] = value;
    }

    [[nodiscard]] bool isTooLarge() const { return m_length > maxSize || m_values.size() > maxRows; }
    [[nodiscard]] auto begin() const { return m_values.begin(); }
    [[nodiscard]] auto end() const { return m_values.end(); }

private:
    std::map<std::string, boost::any> m_values;
    std::size_t m_length = 0;
};

/// Of all modules, wherever they keep their values.
Values settings()
{
    Values values;
    olPreferencesRegistry &registry = olPreferencesRegistry::the();
    for (const auto &[key, value] : registry.record().entries())
        values.add(key, value);
    for (const olPreferencesEntry *entry : registry.entries()) {
        if (entry->home() == olHome::Record)
            continue;
        for (const olOfferedDefault &offered : entry->defaults())
            values.add(offered.key, entry->value(offered.key));
    }
    return values;
}

Values state()
{
    Values values;
    for (const olHostValueBase *value : olHostState::the().values())
        values.add(value->name(), value->any());
    return values;
}

std::string withType(const boost::any &value)
{
    return R"({"type": )" + olValue::quoted(olValue::typeName(value)) + R"(, "value": )" + olValue::toJson(value) + '}';
}

olWebAnswer message(unsigned status, const QString &text)
{
    return {status, "text/plain; charset=utf-8", text.toUtf8() + '\n'};
}

olWebAnswer tooLarge() { return message(503, Words::tr("The answer would be too large.")); }

olWebAnswer json(const Values &values, std::string (*text)(const boost::any &))
{
    if (values.isTooLarge())
        return tooLarge();
    std::string lines;
    for (const auto &[key, value] : values) {
        lines += (lines.empty() ? "\n  " : ",\n  ") + olValue::quoted(key) + ": " + text(value);
        if (lines.size() > maxSize)
            return tooLarge();
    }
    return {200, "application/json; charset=utf-8", QByteArray::fromStdString('{' + lines + "\n}\n")};
}

QString row(const QString &name, const QString &value)
{
    return QStringLiteral("<tr><th scope=\"row\">%1</th><td>%2</td></tr>\n")
        .arg(name.toHtmlEscaped(), value.toHtmlEscaped());
}

olWebAnswer statusPage()
{
    const olHostState &host = olHostState::the();
    const Values values = state();
    if (values.isTooLarge())
        return tooLarge();
    QString rows;
    for (const auto &[name, value] : values) {
        rows += row(QString::fromStdString(name), QString::fromStdString(olValue::toJson(value)));
        if (std::size_t(rows.size()) > maxSize)
            return tooLarge();
    }

    const QString page =
        QStringLiteral("<!DOCTYPE html>\n<html lang=\"%5\">\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
                       "<meta name=\"viewport\" content=\"width=device-width\">\n"
                       "<style>body{font-family:sans-serif;margin:2em auto;max-width:50em;padding:0 1em;color:#222;"
                       "background:#fff}th,td{padding:.2em 1em .2em 0;text-align:left;vertical-align:top;"
                       "border-bottom:1px solid #ddd;font-weight:normal;overflow-wrap:anywhere}"
                       "table{border-collapse:collapse;width:100%}</style>\n</head>\n"
                       "<body>\n<h1>%1</h1>\n<p>%2</p>\n"
                       "<p><a href=\"/settings.json\">%3</a> &middot; <a href=\"/state.json\">%4</a></p>\n"
                       "<h2>%4</h2>\n<table>\n")
            .arg(host.appVersionName.get().toHtmlEscaped(), Words::tr("The application is running.").toHtmlEscaped(),
                 Words::tr("Settings").toHtmlEscaped(), Words::tr("State of the host").toHtmlEscaped(),
                 Words::tr("en", "code of the language")) +
        rows + QStringLiteral("</table>\n</body>\n</html>\n");
    return {200, "text/html; charset=utf-8", page.toUtf8()};
}

} // namespace

olWebAnswer olWebPages::answer(const olWebRequest &request)
{
    if (request.method != "GET" && request.method != "HEAD")
        return message(405, Words::tr("Nothing can be changed here; ask with GET."));
    if (request.path == "/")
        return statusPage();
    if (request.path == "/settings.json")
        return json(settings(), withType);
    if (request.path == "/state.json")
        return json(state(), olValue::toJson);
    return message(404, Words::tr("There is no such page."));
}

olWebAnswer olWebPages::refusal() { return message(403, Words::tr("This host is not allowed.")); }
