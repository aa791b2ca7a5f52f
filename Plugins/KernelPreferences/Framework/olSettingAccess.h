#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

class olSettingList;

/// Through this a host asks for the settings of a module, without the record being touched. It is a child of the
/// module's page, or of the module while the host has no page of it. Values are variants as olVariant.h lays them down.
/// The list that it speaks for owns it.
class olSettingAccess : public QObject
{
    Q_OBJECT

public:
    /// A child of the owner, under the object name "olSettingAccess".
    olSettingAccess(const olSettingList &settings, QObject &owner);

    /// All settings in the order in which their defaults are written, also those without a control.
    Q_INVOKABLE QStringList keys() const;

    /// What the setting's control holds; invalid for a key that no control of the page edits.
    Q_INVOKABLE QVariant value(const QString &key) const;

    /// What the setting is: "type" (as the host names it), "default" (not there for a list that is absent by default),
    /// "minimum", "maximum", "decimals", "unit", "maximumLength" (where it has such), "choices" (a list of maps with
    /// "value" and "text"; with "editable" other values can be typed too), "effect" ("now", "next import", "next
    /// start"), "warning" (where a question goes with a value: "value", "title", "text", "informative", "accept",
    /// "reject"); and of one with a control "inverted", "label", "captions" (outermost first) and "toolTip". Empty for
    /// an unknown key.
    Q_INVOKABLE QVariantMap describe(const QString &key) const;

    /// The value as a person reads it: the item of a combo box, a number with its unit, "on" or "off". Empty for an
    /// unknown key and for a value of another type.
    Q_INVOKABLE QString text(const QString &key, const QVariant &value) const;

private:
    const olSettingList &m_settings;
};
