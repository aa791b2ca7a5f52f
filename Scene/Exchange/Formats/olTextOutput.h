#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <charconv>
#include <type_traits>

/// Writes a file of words and numbers, which have a point in every language.
class olTextOutput
{
public:
    explicit olTextOutput(const QString &file) : m_file(file) { m_isGood = m_file.open(QIODevice::WriteOnly); }

    olTextOutput &operator<<(const char *text) { return put(text, int(qstrlen(text))); }
    olTextOutput &operator<<(char letter) { return put(&letter, 1); }
    olTextOutput &operator<<(const QByteArray &text) { return put(text.constData(), text.size()); }
    olTextOutput &operator<<(const QString &text) { return *this << text.toUtf8(); }

    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    olTextOutput &operator<<(Number number)
    {
        char text[32];
        std::to_chars_result end{};
        // Nine digits tell all numbers of single precision apart.
        if constexpr (std::is_integral_v<Number>)
            end = std::to_chars(text, text + sizeof(text), number);
        else
            end = std::to_chars(text, text + sizeof(text), double(number), std::chars_format::general, 9);
        return put(text, int(end.ptr - text));
    }

    /// Whether all is written.
    [[nodiscard]] bool finish()
    {
        flush();
        return m_isGood && m_file.flush();
    }

private:
    olTextOutput &put(const char *text, int count)
    {
        constexpr int block = 1 << 20;
        m_text.append(text, count);
        if (m_text.size() > block)
            flush();
        return *this;
    }

    void flush()
    {
        m_isGood = m_isGood && m_file.write(m_text) == m_text.size();
        m_text.resize(0);
    }

    QFile m_file;
    QByteArray m_text;
    bool m_isGood = false;
};
