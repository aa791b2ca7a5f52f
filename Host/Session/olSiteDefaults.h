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
    QString file;                  ///< where it stands
};

/// Whose files count: root's alone, or anyone's, to judge a file before it is rolled out.
enum class olSiteOwner { Root, Anyone };

/// Other defaults, and locks, that a site gives to all its people in JSON files:
/// `{"Camera fov": {"value": 60, "locked": true, "reason": "..."}}`. A file counts only while root alone can change it
/// and its folder. One that cannot be read or is no such JSON is ignored as a whole; an entry with another fault keeps
/// its lock. The types are the modules', so all this is resolved only when they have offered their defaults.
class ORLO_HOST_EXPORT olSiteDefaults
{
public:
    /// The default that a module offered for a key; empty where none did.
    using DefaultOf = std::function<boost::any(const std::string &key)>;

    /// Why a setting cannot have a value, as what follows its key in a sentence; empty where it can.
    using WhyNot = std::function<QString(const std::string &key, const boost::any &value)>;

    /// `orlo/site.json` in /etc/xdg, whatever the environment says, and then in each of the configuration folders that
    /// it names beside the user's own; existing or not.
    [[nodiscard]] static QStringList systemFiles();

    /// Of several files that speak of a key, the first one's word holds.
    explicit olSiteDefaults(QStringList files, olSiteOwner owner = olSiteOwner::Root)
        : m_files(std::move(files)), m_owner(owner)
    {
    }

    /// Reads the files. To be called once, before any of the following.
    void read();

    /// A setting that is needed before there are modules; its value is empty where no file gives one of that type.
    [[nodiscard]] olSiteSetting early(const std::string &key, const std::string &type) const;

    /// Holds the files against the modules' settings, once. A value that a setting cannot have leaves the module's
    /// default.
    void resolve(const DefaultOf &defaultOf, const WhyNot &whyNot);

    /// After resolve(): only keys that a module has.
    [[nodiscard]] const std::map<std::string, olSiteSetting> &settings() const { return m_settings; }

    /// One sentence for each fault, with the file and where it can the line, found since they were last taken.
    [[nodiscard]] QStringList takeFaults() { return std::exchange(m_faults, {}); }

    /// Keys that no module has: misspelt, or of an edition that is not running. Complete after resolve().
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
    void resolveLine(const QString &file, const Line &line, const boost::any &offered, const WhyNot &whyNot);
    [[nodiscard]] static olSiteSetting settingOf(const QString &file, const Line &line, const boost::any &value);
    [[nodiscard]] static QString takePart(const QString &name, const QByteArray &value, Line &line);
    void reject(const QString &file, const QString &why);
    void fault(const QString &file, int line, const QString &what);

    QStringList m_files;
    olSiteOwner m_owner;
    std::vector<File> m_read;
    std::map<std::string, olSiteSetting> m_settings;
    QStringList m_faults;
    QStringList m_unknown;
};
