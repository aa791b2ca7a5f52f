// A site's file of defaults and locks, held against modules whose keys begin with the name of their type.

#include "Session/olSiteDefaults.h"
#include "State/olValue.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

namespace
{

boost::any defaultOf(const std::string &key)
{
    const std::string type = key.substr(0, key.find(' '));
    for (const char *json : {"false", "0", "\"\"", "[]", "[0, 0, 0]"}) {
        const boost::any value = olValue::fromJson(type, QByteArray(json));
        if (!value.empty())
            return value;
    }
    return {};
}

QString whyNot(const std::string &key, const boost::any &value)
{
    const bool isOfItsType = olValue::typeName(value) == key.substr(0, key.find(' '));
    return isOfItsType ? QString() : QStringLiteral("is of another type");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("site.json"));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char *>(data), qint64(size)) < 0)
        std::abort();
    file.close();

    olSiteDefaults site({name}, olSiteOwner::Anyone);
    site.read();
    (void)site.early("int language", "int");
    site.resolve(defaultOf, whyNot);
    for (const auto &[key, setting] : site.settings()) {
        if (olValue::typeName(setting.value) != olValue::typeName(defaultOf(key)))
            std::abort();
    }
    return 0;
}
