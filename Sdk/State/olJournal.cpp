#include "State/olJournal.h"

#include "State/olValue.h"
#include "Utilities/olMessage.h"

#include <QString>

#include <utility>

namespace
{

std::string joined(const std::vector<std::string> &texts)
{
    std::string out;
    for (const std::string &text : texts)
        out += (out.empty() ? "" : ", ") + text;
    return out;
}

} // namespace

olJournalObserver::~olJournalObserver() = default;

olJournalObserver *olJournal::s_observer = nullptr;

olJournalObserver *olJournal::observe(olJournalObserver *observer) { return std::exchange(s_observer, observer); }

void olJournal::report(const std::string &function, const std::vector<std::string> &arguments)
{
    s_observer->called(function + '(' + joined(arguments) + ')');
}

std::string olJournal::named(const char *type, const std::string &object)
{
    return std::string(type) + '(' + text(object) + ')';
}

std::string olJournal::text(bool value) { return value ? "true" : "false"; }
std::string olJournal::text(int value) { return std::to_string(value); }
std::string olJournal::text(unsigned value) { return std::to_string(value); }
std::string olJournal::text(float value) { return olValue::number(value); }
std::string olJournal::text(double value) { return olValue::number(value); }
std::string olJournal::text(const char *value) { return value ? text(std::string(value)) : "null"; }
std::string olJournal::text(const std::string &value) { return olValue::quoted(value); }
std::string olJournal::text(const QString &value) { return text(value.toStdString()); }

std::string olJournal::text(const osg::Color3f &value)
{
    return '(' + joined({text(value.red()), text(value.green()), text(value.blue())}) + ')';
}

namespace
{

template <class List, class Text> std::string listed(const List &list, Text &&text)
{
    std::vector<std::string> texts;
    texts.reserve(list.size());
    for (const auto &element : list)
        texts.push_back(text(element));
    return '[' + joined(texts) + ']';
}

} // namespace

std::string olJournal::text(const std::vector<float> &value)
{
    return listed(value, [](float element) { return text(element); });
}

std::string olJournal::text(const std::vector<std::string> &value)
{
    return listed(value, [](const std::string &element) { return text(element); });
}

std::string olJournal::text(const std::vector<osg::Color3f> &value)
{
    return listed(value, [](const osg::Color3f &element) { return text(element); });
}

// The headlight is the only node that any of the calls takes.
std::string olJournal::text(const osg::NodePtr &value) { return value == osg::NullFC ? "null" : "headlight"; }

std::string olJournal::text(const olMessage &value)
{
    std::vector<std::string> entries;
    for (const auto &[key, entry] : value.entries())
        entries.push_back(text(key) + ": " + olValue::typeName(entry) + ' ' + olValue::toJson(entry));
    return '{' + joined(entries) + '}';
}
