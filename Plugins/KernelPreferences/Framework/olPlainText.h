#pragma once

#include <OpenSG/OSGColor.h>

#include <QCoreApplication>
#include <QString>

#include <string>
#include <vector>

/// How a value reads for a person who sees no control: numbers in the shortest decimals that read back the same, lists
/// as the language separates them, "none" for nothing.
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
        QString text;
        for (const Element &element : list)
            text =
                text.isEmpty() ? of(element) : tr("%1, %2", "one value of a list, and the next").arg(text, of(element));
        return of(text);
    }

    /// A number with its unit behind it; the degree stands at the number itself.
    [[nodiscard]] static QString withUnit(const QString &number, const QString &unit);
};
