#include "olScriptRunner.h"

#include "Editing/olPageIndex.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "Session/olPreferencesSession.h"
#include "State/olHostState.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olControlDriver.h"
#include "olNearest.h"
#include "olToolError.h"

#include <QIODevice>
#include <QStringList>
#include <QWidget>

namespace
{

olMessage &record() { return olPreferencesRegistry::the().record(); }
olPreferencesService &preferencesService() { return *olKernelServiceFactory::the<olPreferencesService>(); }

std::string quoted(const std::string &text) { return olValue::quoted(text); }

/// The last word of a line.
std::string key(olScriptParser &line)
{
    const olScriptWord word = line.word("KEY");
    line.end();
    return word.text.toStdString();
}

struct TypedValue {
    std::string key;
    boost::any value;
};

/// TYPE "KEY" VALUE
TypedValue typedValue(olScriptParser &line)
{
    const std::string type = line.word("TYPE").text.toStdString();
    if (!olValue::isTypeName(type)) {
        QStringList names;
        for (const std::string &name : olValue::typeNames())
            names << QString::fromStdString(name);
        line.fail(olToolError::tr("there is no type %1, only %2")
                      .arg(QString::fromStdString(type), names.join(QLatin1Char(' '))));
    }
    const std::string key = line.word("KEY").text.toStdString();
    const olScriptValue written = line.value();
    const boost::any value = written.as(type);
    if (value.empty())
        throw olToolError(olToolError::tr("%1 is no value of type %2: expected %3")
                              .arg(QString::fromUtf8(written.written), QString::fromStdString(type),
                                   QString::fromStdString(olValue::expectation(type))));
    return {key, value};
}

int count(const olScriptWord &word)
{
    bool isNumber = false;
    const int number = word.text.toInt(&isNumber);
    if (!isNumber || number < 0)
        throw olToolError(olToolError::tr("%1 is no number counted from 0").arg(word.text));
    return number;
}

QString moduleNames()
{
    QStringList names;
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries())
        names << entry->name();
    return olListed(names);
}

QStringList factNames()
{
    QStringList names;
    for (const olHostValueBase *value : olHostState::the().values()) {
        if (value->isFact())
            names << QLatin1String(value->name());
    }
    return names;
}

} // namespace

olScriptRunner::olScriptRunner(olPreferencesSession &session, std::FILE *out)
    : m_session(session), m_transcript(out), m_answers([this](const std::string &line) { m_transcript.print(line); })
{
}

void olScriptRunner::run(QIODevice &script)
{
    // Line by line, so that a script can also be typed; the end is known only by an empty read.
    int number = 0;
    for (QByteArray line = script.readLine(); !line.isEmpty(); line = script.readLine()) {
        ++number;
        try {
            runLine(line);
        } catch (const olToolError &error) {
            throw olToolError(olToolError::tr("line %1: %2").arg(number).arg(QString::fromUtf8(error.what())));
        }
    }
}

void olScriptRunner::runLine(const QByteArray &text)
{
    olScriptParser line(text);
    if (line.atEnd())
        return;
    const QString name = line.word("COMMAND").text;
    QStringList names;
    for (const Command &command : commands()) {
        names << QLatin1String(command.name);
        if (name != names.last())
            continue;
        line.setUsage(command.usage);
        (this->*command.run)(line);
        m_answers.finish();
        const QString error = m_answers.takeError();
        if (!error.isEmpty())
            throw olToolError(error);
        const QStringList failed = m_session.takeNotices();
        if (!failed.isEmpty())
            throw olToolError(olSentences(failed));
        return;
    }
    throw olToolError(olDidYouMean(olToolError::tr("there is no command %1").arg(name), name, names));
}

template <auto operation> void olScriptRunner::forModules(olScriptParser &line)
{
    std::optional<olScriptWord> module;
    if (!line.atEnd())
        module = line.word("MODULE");
    line.end();
    for (olPreferencesEntry *entry : modules(module))
        (entry->*operation)();
}

const std::vector<olScriptRunner::Command> &olScriptRunner::commands()
{
    static const std::vector<Command> all{
        {"defaults", "defaults [MODULE] [keep]", &olScriptRunner::defaults},
        {"gui", "gui [MODULE]", &olScriptRunner::forModules<&olPreferencesEntry::updateGUI>},
        {"data", "data [MODULE]", &olScriptRunner::forModules<&olPreferencesEntry::updateData>},
        {"apply", "apply [MODULE]", &olScriptRunner::forModules<&olPreferencesEntry::applyPreferences>},
        {"newscene", "newscene [MODULE]", &olScriptRunner::forModules<&olPreferencesEntry::preferencesNewScene>},
        {"settled", "settled [MODULE]", &olScriptRunner::forModules<&olPreferencesEntry::markClean>},
        {"put", "put TYPE \"KEY\" VALUE", &olScriptRunner::put},
        {"remove", "remove \"KEY\"", &olScriptRunner::remove},
        {"get", "get \"KEY\"", &olScriptRunner::get},
        {"service", "service put TYPE \"KEY\" VALUE, or service get \"KEY\"", &olScriptRunner::service},
        {"edit", "edit MODULE \"CONTROL\" VALUE", &olScriptRunner::edit},
        {"click", "click MODULE \"CONTROL\"", &olScriptRunner::click},
        {"select", "select MODULE \"CONTROL\" ROW [COLUMN], or select MODULE \"CONTROL\" none",
         &olScriptRunner::select},
        {"show", "show MODULE \"CONTROL\"", &olScriptRunner::show},
        {"answer", "answer \"BUTTON\", answer directory \"PATH\", answer color [r, g, b] or answer cancel",
         &olScriptRunner::answer},
        {"host", "host FACT VALUE", &olScriptRunner::host},
        {"env", "env NAME [VALUE]", &olScriptRunner::env},
        {"appsetting", "appsetting \"KEY\"", &olScriptRunner::appSetting},
        {"unload", "unload", &olScriptRunner::unload},
    };
    return all;
}

void olScriptRunner::defaults(olScriptParser &line)
{
    const auto isKeep = [](const olScriptWord &word) { return !word.quoted && word.text == QLatin1String("keep"); };
    std::optional<olScriptWord> module;
    bool keep = false;
    if (!line.atEnd()) {
        const olScriptWord word = line.word("MODULE");
        keep = isKeep(word);
        if (!keep)
            module = word;
    }
    if (!line.atEnd() && !keep) {
        keep = isKeep(line.word("keep"));
        if (!keep)
            line.fail(olToolError::tr("behind the module only keep may follow"));
    }
    line.end();
    for (olPreferencesEntry *entry : modules(module))
        entry->setDefaults(!keep);
}

void olScriptRunner::put(olScriptParser &line)
{
    const TypedValue put = typedValue(line);
    record().set(put.key, put.value, true);
}

void olScriptRunner::remove(olScriptParser &line) { record().remove(key(line)); }

void olScriptRunner::get(olScriptParser &line)
{
    const std::string asked = key(line);
    printValue(asked, record().get(asked));
}

void olScriptRunner::service(olScriptParser &line)
{
    const QString what = line.word("put or get").text;
    if (what == QLatin1String("put")) {
        const TypedValue put = typedValue(line);
        preferencesService().set(put.key, put.value);
    } else if (what == QLatin1String("get")) {
        const std::string asked = key(line);
        printValue(asked, preferencesService().get(asked));
    } else {
        line.fail(olToolError::tr("%1 is neither put nor get").arg(what));
    }
}

void olScriptRunner::edit(olScriptParser &line)
{
    const Target edited = usableTarget(line);
    olControlDriver::edit(*edited.control, line.value());
}

void olScriptRunner::click(olScriptParser &line)
{
    const Target pressed = usableTarget(line);
    line.end();
    olControlDriver::click(*pressed.control);
}

void olScriptRunner::select(olScriptParser &line)
{
    const Target view = usableTarget(line);
    const olScriptWord row = line.word("ROW");
    std::optional<int> column;
    if (!line.atEnd())
        column = count(line.word("COLUMN"));
    line.end();
    if (row.text != QLatin1String("none"))
        olControlDriver::select(*view.control, count(row), column);
    else if (column)
        line.fail(olToolError::tr("no column goes with none"));
    else
        olControlDriver::selectNothing(*view.control);
}

void olScriptRunner::show(olScriptParser &line)
{
    const Target shown = target(line);
    line.end();
    std::string text = "control " + shown.written.toStdString();
    const std::string value = olControlDriver::value(*shown.control);
    if (!value.empty())
        text += ' ' + value;
    text += shown.control->isEnabled() ? " enabled" : " disabled";
    text += olPageIndex::isShown(*shown.page, *shown.control) ? " shown" : " hidden";
    m_transcript.print(text);
}

void olScriptRunner::answer(olScriptParser &line)
{
    using Kind = olModalAnswer::Kind;
    const olScriptWord first = line.word("BUTTON");
    olModalAnswer answer{Kind::Button, first.text, {}};
    if (!first.quoted && first.text == QLatin1String("cancel")) {
        answer.kind = Kind::Cancel;
    } else if (!first.quoted && first.text == QLatin1String("directory")) {
        answer.kind = Kind::Directory;
        answer.text = line.word("PATH").text;
    } else if (!first.quoted && first.text == QLatin1String("color")) {
        const olScriptValue value = line.value();
        const boost::any color = value.as("color");
        if (color.empty())
            line.fail(olToolError::tr("%1 is no color").arg(QString::fromUtf8(value.written)));
        answer.kind = Kind::Color;
        answer.color = boost::any_cast<const osg::Color3f &>(color);
    }
    line.end();
    m_answers.queue(answer);
}

void olScriptRunner::host(olScriptParser &line)
{
    const QString name = line.word("FACT").text;
    olHostValueBase *fact = olHostState::the().find(name.toLatin1());
    if (!fact || !fact->isFact())
        throw olToolError(olDidYouMean(olToolError::tr("there is no fact %1").arg(name), name, factNames()));
    const olScriptValue value = line.value();
    const std::string type = olValue::typeName(fact->any());
    if (!fact->setAny(value.as(type)))
        throw olToolError(
            olToolError::tr("%1 does not fit the fact %2: expected %3")
                .arg(QString::fromUtf8(value.written), name, QString::fromStdString(olValue::expectation(type))));
}

void olScriptRunner::env(olScriptParser &line)
{
    const olScriptWord name = line.word("NAME");
    const QByteArray variable = name.text.toLocal8Bit();
    if (variable.contains('='))
        line.fail(olToolError::tr("no variable can be called %1").arg(name.text));
    if (line.atEnd()) {
        const std::string value = qgetenv(variable).toStdString();
        m_transcript.print("env " + variable.toStdString() +
                           (qEnvironmentVariableIsSet(variable) ? ' ' + quoted(value) : " absent"));
        return;
    }
    const olScriptValue value = line.value();
    const auto text = value.text();
    if (!text && !value.number() && !value.boolean())
        line.fail(olToolError::tr("%1 is no text").arg(QString::fromUtf8(value.written)));
    qputenv(variable, text ? text->toUtf8() : value.written);
}

void olScriptRunner::appSetting(olScriptParser &line)
{
    const std::string asked = key(line);
    const std::string value = m_settings.value(QString::fromStdString(asked));
    m_transcript.print("appsetting " + quoted(asked) + ' ' + (value.empty() ? "absent" : value));
}

void olScriptRunner::unload(olScriptParser &line)
{
    line.end();
    requireLibrary();
    m_session.stop();
}

std::vector<olPreferencesEntry *> olScriptRunner::modules(const std::optional<olScriptWord> &name) const
{
    requireLibrary();
    if (!name)
        return olPreferencesRegistry::the().entries();
    olPreferencesEntry *entry = olPreferencesRegistry::the().find(name->text);
    if (entry)
        return {entry};
    throw olToolError(olToolError::tr("there is no module \"%1\"; there is: %2").arg(name->text, moduleNames()));
}

void olScriptRunner::requireLibrary() const
{
    if (!m_session.plugin().isLoaded())
        throw olToolError(olToolError::tr("the library is unloaded"));
}

olScriptRunner::Target olScriptRunner::target(olScriptParser &line) const
{
    const olScriptWord module = line.word("MODULE");
    const olScriptWord control = line.word("CONTROL");
    QWidget *page = modules(module).front()->page();
    if (!page)
        throw olToolError(olToolError::tr("%1 has no page").arg(module.text));
    const olPageIndex index(*page);
    const olPageControlFound found = index.find(control.text);
    if (!found.control)
        throw olToolError(QStringLiteral("%1: %2").arg(module.text, found.error));
    return {found.control->widget, page, module.written + ' ' + control.written};
}

olScriptRunner::Target olScriptRunner::usableTarget(olScriptParser &line) const
{
    Target found = target(line);
    const bool enabled = found.control->isEnabled();
    if (!enabled || !olPageIndex::isShown(*found.page, *found.control))
        throw olToolError((enabled ? olToolError::tr("%1 is hidden") : olToolError::tr("%1 is disabled"))
                              .arg(QString::fromUtf8(found.written)));
    return found;
}

void olScriptRunner::printValue(const std::string &key, const boost::any &value)
{
    const std::string type = olValue::typeName(value);
    if (value.empty())
        m_transcript.print("absent " + quoted(key));
    else if (!type.empty())
        m_transcript.print("value " + quoted(key) + ' ' + type + ' ' + olValue::toJson(value));
    else
        throw olToolError(olToolError::tr("\"%1\" holds a value of a type that settings do not have")
                              .arg(QString::fromStdString(key)));
}
