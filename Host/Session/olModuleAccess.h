#pragma once

#include "olHostExport.h"

#include <QPointer>
#include <QString>
#include <QVariantMap>
#include <boost/any.hpp>

#include <string>
#include <vector>

class QObject;
class olPreferencesEntry;

/// What a module lets a host ask of its settings: an object on its page, or on itself while the host has no page of
/// it. A module without such an object tells nothing: everything is empty then.
class ORLO_HOST_EXPORT olModuleAccess
{
public:
    explicit olModuleAccess(const olPreferencesEntry &entry);

    [[nodiscard]] bool isThere() const { return m_access; }

    /// In the order in which the module writes its defaults, also those that have none.
    [[nodiscard]] std::vector<std::string> keys() const;

    /// What the control of a setting holds, as a value of that type; empty without a control.
    [[nodiscard]] boost::any value(const std::string &key, const std::string &type) const;

    /// See olSettingDescription.
    [[nodiscard]] QVariantMap describe(const std::string &key) const;

    /// The value as a person reads it.
    [[nodiscard]] QString text(const std::string &key, const boost::any &value) const;

private:
    QPointer<QObject> m_access;
};
