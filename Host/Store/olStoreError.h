#pragma once

#include <QString>

#include <stdexcept>
#include <utility>

/// Why a store cannot be used. Stays inside the store, which tells it in a sentence.
class olStoreError : public std::runtime_error
{
public:
    enum class Kind {
        Damaged,
        Newer,   ///< written by a later version, whose rows are not ours to judge
        Foreign, ///< nothing that ever was a store
        Busy,
        NoLocks, ///< the file system refuses them
        Access
    };

    /// The reason is a part of a sentence, without the file's name.
    olStoreError(Kind kind, const QString &reason)
        : std::runtime_error(reason.toStdString()), m_kind(kind), m_reason(reason)
    {
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] const QString &reason() const { return m_reason; }

private:
    Kind m_kind;
    QString m_reason;
};
