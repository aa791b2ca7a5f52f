#include "Kernel/olImportOptions.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

#include <QString>

#include <map>
#include <utility>

namespace
{

constexpr char className[] = "olImportOptions";

std::map<std::string, olImportOptions::Record> &records()
{
    static std::map<std::string, olImportOptions::Record> all;
    return all;
}

/// No importer here goes by them, and so they are to be seen at least.
void tellMaxChordLengths()
{
    std::vector<std::string> lengths;
    for (const auto &[type, record] : records())
        lengths.push_back(type + ' ' + QString::number(record.maxChordLength).toStdString());
    if (lengths != olHostState::the().maxChordLengths.get())
        olHostState::the().maxChordLengths = lengths;
}

} // namespace

olImportOptions::olImportOptions(std::string type, bool continued, bool replacing)
    : m_type(std::move(type)), m_replacing(replacing)
{
    olJournal::call(className, m_type, continued, replacing);
    const Record *before = continued ? written(m_type) : nullptr;
    if (before)
        m_record = *before;
}

template <class Value> void olImportOptions::set(const char *setter, Value &option, const Value &value)
{
    olJournal::callOn(className, m_type, setter, value);
    option = value;
}

// The setters in the header need no more than these.
template void olImportOptions::set(const char *, bool &, const bool &);
template void olImportOptions::set(const char *, int &, const int &);
template void olImportOptions::set(const char *, double &, const double &);

void olImportOptions::setUsePlugin(bool value)
{
    set("setUsePlugin", m_record.usePlugin, value);
    if (!value)
        m_record.legacyLoader.clear();
}

void olImportOptions::setLegacyLoader(const char *name)
{
    set("setLegacyLoader", m_record.legacyLoader, std::string(name));
}

void olImportOptions::write()
{
    olJournal::callOn(className, m_type, "write");
    const Record *before = written(m_type);
    if (before && !m_replacing)
        return;
    const bool isSeen = before && before->maxChordLength == m_record.maxChordLength;
    records()[m_type] = m_record;
    if (!isSeen)
        tellMaxChordLengths();
}

const olImportOptions::Record *olImportOptions::written(const std::string &type)
{
    const auto found = records().find(type);
    return found == records().end() ? nullptr : &found->second;
}
