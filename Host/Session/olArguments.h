#pragma once

#include <QString>
#include <QTextCodec>

#include <optional>

/// How programs take what stands on their command line: nothing is ever another than what was given.
namespace olArguments
{

/// Arguments and the names of files are UTF-8 in every locale. Before there is an application object.
inline void useUtf8() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

/// Nothing where the bytes are no UTF-8.
[[nodiscard]] inline std::optional<QString> text(const char *argument)
{
    const QString text = QString::fromUtf8(argument);
    return text.toUtf8() == argument ? std::optional<QString>(text) : std::nullopt;
}

/// As the name of a file: the toolkit would take what begins with a colon for a resource of the program.
[[nodiscard]] inline QString file(const QString &argument)
{
    return argument.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + argument : argument;
}

} // namespace olArguments
