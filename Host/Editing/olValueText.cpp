#include "Editing/olValueText.h"

#include "Session/olModuleAccess.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olValueText)
};

QString plain(const boost::any &value)
{
    if (const auto *flag = boost::any_cast<bool>(&value))
        return *flag ? Words::tr("on") : Words::tr("off");
    if (const auto *characters = boost::any_cast<QString>(&value))
        return *characters;
    return QString::fromStdString(olValue::toJson(value));
}

} // namespace

QString olValueText(const std::string &key, const boost::any &value)
{
    if (value.empty())
        return Words::tr("none");
    const olPreferencesEntry *module = olPreferencesSession::moduleOf(key);
    const QString told = module ? olModuleAccess(*module).text(key, value) : QString();
    const QString text = told.isEmpty() ? plain(value) : told;
    return text.isEmpty() ? Words::tr("none") : text;
}

QString olShortValueText(const std::string &key, const boost::any &value)
{
    constexpr int longest = 80;
    const QString text = olValueText(key, value).simplified();
    return text.size() > longest ? text.left(longest - 1) + QChar(0x2026) : text;
}
