#pragma once

#include <OpenSG/OSGColor.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// How a value reads for a person who sees no control: numbers in the shortest decimals that read back the same, lists
/// with commas, "none" for nothing.
class olPlainText
{
    Q_DECLARE_TR_FUNCTIONS(olPlainText)

public:
    [[nodiscard]] static QString of(bool value) { return value ? tr("on") : tr("off"); }
    [[nodiscard]] static QString of(int value) { return QString::number(value); }
    [[nodiscard]] static QString of(unsigned value) { return QString::number(value); }
    [[nodiscard]] static QString of(float value);
    [[nodiscard]] static QString of(double value);
    [[nodiscard]] static QString of(const QString &value) { return value.isEmpty() ? tr("none") : value; }
    [[nodiscard]] static QString of(const std::string &value) { return of(QString::fromStdString(value)); }
    [[nodiscard]] static QString of(const osg::Color3f &value);
    template <class Element> [[nodiscard]] static QString of(const std::vector<Element> &list)
    {
        QStringList texts;
        for (const Element &element : list)
            texts << of(element);
        return of(texts.join(QLatin1String(", ")));
    }

    /// A number with its unit behind it; the degree stands at the number itself.
    [[nodiscard]] static QString withUnit(const QString &number, const QString &unit);
};
