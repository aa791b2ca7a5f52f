#include "olScratchSettings.h"

#include "State/olValue.h"
#include "olToolError.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace
{

std::string json(const QVariant &value)
{
    switch (int(value.type())) {
    case QMetaType::Bool:
        return olValue::toJson(value.toBool());
    case QMetaType::Int:
        return olValue::toJson(value.toInt());
    case QMetaType::UInt:
        return olValue::toJson(value.toUInt());
    case QMetaType::Float:
        return olValue::toJson(value.toFloat());
    case QMetaType::Double:
        return olValue::toJson(value.toDouble());
    case QMetaType::QStringList: {
        std::vector<std::string> texts;
        const QStringList list = value.toStringList();
        for (const QString &text : list)
            texts.push_back(text.toStdString());
        return olValue::toJson(texts);
    }
    default:
        return olValue::toJson(value.toString());
    }
}

} // namespace

olScratchSettings::olScratchSettings()
{
    if (!m_directory.isValid())
        throw olToolError(
            olToolError::tr("Cannot make a directory for scratch settings: %1.").arg(m_directory.errorString()));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_directory.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, m_directory.filePath(QStringLiteral("system")));
}

std::string olScratchSettings::value(const QString &key) const
{
    const QSettings settings;
    return settings.contains(key) ? json(settings.value(key)) : std::string();
}
