#pragma once

#include <QString>

/// An argument of a command line as the name of a file: the toolkit would take what begins with a colon for a resource
/// of the program.
[[nodiscard]] inline QString olFileArgument(const QString &argument)
{
    return argument.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + argument : argument;
}
