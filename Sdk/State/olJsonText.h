#pragma once

#include "Utilities/olExport.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// Texts in JSON, exact to the byte: bytes that are no UTF-8 stand as the lone surrogates \udc80 to \udcff, one for
/// each byte, and lone surrogates of a QString as themselves. Neither can occur in a text that is in order.
namespace olJsonText
{

/// In double quotes with JSON's escapes.
[[nodiscard]] ORLO_SDK_EXPORT std::string quoted(std::string_view text);
[[nodiscard]] ORLO_SDK_EXPORT std::string quoted(const QString &text);

/// The bytes that quoted() would have been given; nothing for a lone surrogate that stands for no byte.
[[nodiscard]] ORLO_SDK_EXPORT std::optional<std::string> bytes(const QString &text);

} // namespace olJsonText

/// The one reader of JSON here. None of the libraries serves: they refuse or replace lone surrogates, round numbers, or
/// let the last of two members of one name count.
///
/// Takes a JSON text apart from its beginning, without ever rounding a number: what a number is to be, its taker knows.
/// Blanks before what is asked for are passed over. What is not there leaves the position after those blanks.
class ORLO_SDK_EXPORT olJsonReader
{
public:
    explicit olJsonReader(std::string_view text) : m_size(text.size()), m_rest(text) {}

    /// True, and past it, where this very text comes next.
    bool take(std::string_view expected);

    /// The number's own characters.
    [[nodiscard]] std::optional<std::string_view> number();

    /// The text between the quotes, without its escapes.
    [[nodiscard]] std::optional<QString> text();

    /// The whole of whatever value comes next, as it stands there.
    [[nodiscard]] std::optional<std::string_view> value();

    [[nodiscard]] bool atEnd();

    /// How many bytes lie behind: after a failure, the place of the fault.
    [[nodiscard]] std::size_t position() const { return m_size - m_rest.size(); }

private:
    bool skipValue(int depth);
    bool skipList(char end, int depth);
    void skipBlanks();
    [[nodiscard]] std::size_t digitsFrom(std::size_t position) const;
    bool takeEscape(QString &text);
    bool takeCharacter(QString &text);

    std::size_t m_size;
    std::string_view m_rest;
};
