#pragma once

#include "olHostExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <boost/any.hpp>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What the site has settled for one setting.
struct olSiteSetting {
    boost::any value;              ///< its default here
    std::optional<QString> locked; ///< why nobody may choose another value; nothing where they may
};

/// Other defaults, and locks, that a site gives to all its people in JSON files:
/// `{"Camera fov": {"value": 60, "locked": true, "reason": "..."}}`. A file with any fault counts as a whole as not
/// there. The types are the modules', so all this is settled only when they have offered their defaults.
class ORLO_HOST_EXPORT olSiteDefaults
{
public:
    /// The default that a module offered for a key; empty where none did.
    using DefaultOf = std::function<boost::any(const std::string &key)>;

    /// Why a setting cannot have a value, as what follows its key in a sentence; empty where it can.
    using WhyNot = std::function<QString(const std::string &key, const boost::any &value)>;

    /// `orlo/site.json` in each of the system's configuration folders, the most important first, existing or not.
    [[nodiscard]] static QStringList systemFiles();

    /// Of several files that speak of a key, the first one's word holds.
    explicit olSiteDefaults(QStringList files) : m_files(std::move(files)) {}

    /// Reads the files. To be called before any of the following.
    void read();

    /// A setting that is needed before there are modules; its value is empty where no file gives one of that type.
    [[nodiscard]] olSiteSetting early(const std::string &key, const std::string &type) const;

    /// Holds the files against the modules' settings and drops those with faults.
    void settle(const DefaultOf &defaultOf, const WhyNot &whyNot);

    /// After settle(): only keys that a module has.
    [[nodiscard]] const std::map<std::string, olSiteSetting> &settings() const { return m_settings; }

    /// One sentence for each fault, with file and line, that was found since the last time they were taken.
    [[nodiscard]] QStringList takeFaults() { return std::exchange(m_faults, {}); }

    /// Keys that no module has: misspelt, or of an edition that is not running. Complete after settle().
    [[nodiscard]] const QStringList &unknown() const { return m_unknown; }

private:
    struct Line {
        std::string key;
        int number = 0;
        QByteArray value; ///< its JSON text; null where the module's own default stays
        bool isLocked = false;
        QString reason;
    };
    struct File {
        QString name;
        std::vector<Line> lines;
    };

    void readFile(const QString &name);
    [[nodiscard]] bool settleFile(const File &file, const DefaultOf &defaultOf, const WhyNot &whyNot,
                                  std::map<std::string, olSiteSetting> &settings);
    [[nodiscard]] static olSiteSetting settingOf(const Line &line, const boost::any &value);
    [[nodiscard]] static QString takePart(const QString &name, const QByteArray &value, Line &line);
    void fault(const QString &file, int line, const QString &what);

    QStringList m_files;
    std::vector<File> m_read;
    std::map<std::string, olSiteSetting> m_settings;
    QStringList m_faults;
    QStringList m_unknown;
};
