#pragma once

#include <QString>

#include <optional>
#include <utility>

/// Why something could not be done, in words for a person.
struct olFailure {
    QString reason;
};

/// What came of something that can fail: its value, or the reason why there is none. The value is to be taken only
/// where there is one.
template <class T = void> class [[nodiscard]] olResult
{
public:
    // NOLINTBEGIN(google-explicit-constructor): a function returns the value or an olFailure
    olResult(T value) : m_value(std::move(value)) {}
    olResult(olFailure failure) : m_error(std::move(failure.reason)) {}
    // NOLINTEND(google-explicit-constructor)

    [[nodiscard]] bool isOk() const { return m_value.has_value(); }

    /// Empty where there is a value.
    [[nodiscard]] const QString &error() const { return m_error; }

    [[nodiscard]] const T &operator*() const { return *m_value; }
    [[nodiscard]] T &operator*() { return *m_value; }
    [[nodiscard]] const T *operator->() const { return &*m_value; }

private:
    std::optional<T> m_value;
    QString m_error;
};

/// Of what has no value: that it was done, or why not.
template <> class [[nodiscard]] olResult<void>
{
public:
    olResult() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): a function returns an olFailure
    olResult(olFailure failure) : m_failure(std::move(failure)) {}

    [[nodiscard]] bool isOk() const { return !m_failure; }
    [[nodiscard]] QString error() const { return m_failure ? m_failure->reason : QString(); }

private:
    std::optional<olFailure> m_failure;
};
