#pragma once

#include "State/olHome.h"
#include "Utilities/olExport.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <boost/any.hpp>

#include <functional>
#include <string>
#include <vector>

/// A default as a module offered it.
struct olOfferedDefault {
    std::string key;
    boost::any value;
};

/// One registered module as the host sees it, whichever its kind and wherever its values are kept.
class ORLO_SDK_EXPORT olPreferencesEntry
{
public:
    /// Enters the registry, behind those already in it, and leaves it at destruction.
    olPreferencesEntry(const QString &name, const QString &category);
    virtual ~olPreferencesEntry();
    olPreferencesEntry(const olPreferencesEntry &) = delete;
    olPreferencesEntry &operator=(const olPreferencesEntry &) = delete;

    [[nodiscard]] const QString &name() const { return m_name; }
    [[nodiscard]] const QString &category() const { return m_category; }

    /// The class of the module; not to be asked while the module is still being built.
    [[nodiscard]] virtual std::string className() const = 0;

    /// The module's own object, where it is one; its class is what the module inherits besides.
    [[nodiscard]] virtual QObject *object() const = 0;

    /// Null where none was handed over. The module owns it.
    [[nodiscard]] QWidget *page() const { return m_page; }
    void addPage(QWidget *page);
    void subPage(QWidget *page);

    /// Lets the module write its defaults and remembers which it offered.
    void setDefaults(bool flag);

    /// What setDefaults() offered, in writing order, each key once.
    [[nodiscard]] const std::vector<olOfferedDefault> &defaults() const { return m_defaults; }
    [[nodiscard]] const olOfferedDefault *findDefault(const std::string &key) const;
    void offered(const std::string &key, const boost::any &value);

    /// From here on another value counts as the default, until the next setDefaults(). Nothing happens where the
    /// module has no such setting.
    void replaceDefault(const std::string &key, const boost::any &value);

    /// What the host asks of the module. Where it throws, olRegistryNews::moduleFailed() tells of it.
    virtual void applyPreferences() = 0;
    virtual void updateGUI() = 0;
    virtual bool updateData() = 0; ///< false where it threw: its values may then be half those of the page
    virtual void preferencesNewScene() = 0;
    virtual void preferencesLoaded() = 0;
    virtual void preferencesInitialApply() = 0;

    /// What the host does after an apply: from here on only what differs counts as changed.
    virtual void markClean() = 0;

    [[nodiscard]] virtual olHome home() const = 0;

    /// A value where this module keeps its values; empty when absent.
    [[nodiscard]] virtual boost::any value(const std::string &key) const = 0;
    virtual void setValue(const std::string &key, const boost::any &value) = 0;
    virtual void removeValue(const std::string &key) = 0;

    /// What the module's isChanged() answers for the key until the next markClean().
    virtual void setChanged(const std::string &key, bool changed) = 0;

protected:
    /// Whether the call came back without an exception.
    bool guarded(const std::function<void()> &call) const;

    virtual void writeDefaults(bool flag) = 0;

private:
    QString m_name;
    QString m_category;
    QPointer<QWidget> m_page;
    std::vector<olOfferedDefault> m_defaults;
};
