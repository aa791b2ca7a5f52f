#pragma once

#include <QCoreApplication>
#include <QString>

#include <stdexcept>

/// Why a command or a line of a script cannot be carried out. Thrown and caught within the tool alone, never through a
/// call of the plug-in's.
class olToolError : public std::runtime_error
{
    Q_DECLARE_TR_FUNCTIONS(olToolError)

public:
    explicit olToolError(const QString &why, int status = 2) : std::runtime_error(why.toStdString()), m_status(status)
    {
    }

    /// With which the tool ends.
    [[nodiscard]] int status() const { return m_status; }

private:
    int m_status;
};
