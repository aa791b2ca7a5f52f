#include "State/olJsonText.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace
{

constexpr char32_t firstByteEscape = 0xdc00;

struct Character {
    char32_t code;
    std::size_t length;
};

/// The UTF-8 character that the text begins with; nothing where its first byte begins none.
std::optional<Character> firstCharacter(std::string_view text)
{
    const auto byte = [&text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return Character{first, 1};
    const std::size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || text.size() < length)
        return std::nullopt;
    char32_t code = first & (0x7fu >> length);
    for (std::size_t index = 1; index < length; ++index) {
        if ((byte(index) & 0xc0u) != 0x80u)
            return std::nullopt;
        code = code << 6u | (byte(index) & 0x3fu);
    }
    const char32_t smallest = length == 4 ? 0x10000 : length == 3 ? 0x800 : 0x80;
    if (code < smallest || code > 0x10ffff || QChar::isSurrogate(code))
        return std::nullopt;
    return Character{code, length};
}

void appendUtf8(std::string &text, char32_t code)
{
    if (code < 0x80) {
        text += char(code);
        return;
    }
    const int following = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr unsigned firstMarks[] = {0, 0xc0, 0xe0, 0xf0};
    text += char(firstMarks[following] | code >> (6u * unsigned(following)));
    for (int left = following - 1; left >= 0; --left)
        text += char(0x80u | (code >> (6u * unsigned(left)) & 0x3fu));
}

void appendEscape(std::string &out, char32_t unit)
{
    char escape[8];
    std::snprintf(escape, sizeof escape, "\\u%04x", unsigned(unit));
    out += escape;
}

void appendAscii(std::string &out, char character)
{
    switch (character) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        if (static_cast<unsigned char>(character) < 0x20)
            appendEscape(out, char32_t(character));
        else
            out += character;
    }
}

void appendQString(QString &text, char32_t code)
{
    if (QChar::requiresSurrogates(code)) {
        text += QChar(QChar::highSurrogate(code));
        text += QChar(QChar::lowSurrogate(code));
    } else {
        text += QChar(ushort(code));
    }
}

/// Calls for each character of the text, and for each lone surrogate, in order.
template <class Visit> void eachCode(const QString &text, Visit visit)
{
    for (int index = 0; index < text.size(); ++index) {
        const QChar unit = text.at(index);
        if (unit.isHighSurrogate() && index + 1 < text.size() && text.at(index + 1).isLowSurrogate())
            visit(char32_t(QChar::surrogateToUcs4(unit, text.at(++index))));
        else
            visit(char32_t(unit.unicode()));
    }
}

} // namespace

namespace olJsonText
{

std::string quoted(std::string_view text)
{
    std::string out = "\"";
    while (!text.empty()) {
        const auto character = firstCharacter(text);
        if (!character)
            appendEscape(out, firstByteEscape + static_cast<unsigned char>(text.front()));
        else if (character->length == 1)
            appendAscii(out, text.front());
        else
            out += text.substr(0, character->length);
        text.remove_prefix(character ? character->length : 1);
    }
    return out + '"';
}

std::string quoted(const QString &text)
{
    std::string out = "\"";
    eachCode(text, [&out](char32_t code) {
        if (QChar::isSurrogate(code))
            appendEscape(out, code);
        else if (code < 0x80)
            appendAscii(out, char(code));
        else
            appendUtf8(out, code);
    });
    return out + '"';
}

std::optional<std::string> bytes(const QString &text)
{
    std::string out;
    bool isInOrder = true;
    eachCode(text, [&](char32_t code) {
        if (code >= firstByteEscape + 0x80 && code <= firstByteEscape + 0xff)
            out += char(code - firstByteEscape);
        else if (QChar::isSurrogate(code))
            isInOrder = false;
        else
            appendUtf8(out, code);
    });
    return isInOrder ? std::optional<std::string>(out) : std::nullopt;
}

} // namespace olJsonText

void olJsonReader::skipBlanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size())); }

bool olJsonReader::take(std::string_view expected)
{
    skipBlanks();
    if (m_rest.substr(0, expected.size()) != expected)
        return false;
    m_rest.remove_prefix(expected.size());
    return true;
}

bool olJsonReader::atEnd()
{
    skipBlanks();
    return m_rest.empty();
}

std::size_t olJsonReader::digitsFrom(std::size_t position) const
{
    const std::size_t end = std::min(m_rest.find_first_not_of("0123456789", position), m_rest.size());
    return end - std::min(position, end);
}

std::optional<std::string_view> olJsonReader::number()
{
    skipBlanks();
    const auto at = [this](std::size_t position) { return position < m_rest.size() ? m_rest[position] : '\0'; };
    std::size_t end = at(0) == '-' ? 1 : 0;
    const std::size_t whole = digitsFrom(end);
    if (whole == 0 || (whole > 1 && at(end) == '0'))
        return std::nullopt;
    end += whole;
    if (at(end) == '.') {
        const std::size_t decimals = digitsFrom(end + 1);
        if (decimals == 0)
            return std::nullopt;
        end += 1 + decimals;
    }
    if (at(end) == 'e' || at(end) == 'E') {
        const std::size_t sign = at(end + 1) == '-' || at(end + 1) == '+' ? 1 : 0;
        const std::size_t exponent = digitsFrom(end + 1 + sign);
        if (exponent == 0)
            return std::nullopt;
        end += 1 + sign + exponent;
    }
    const std::string_view number = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    return number;
}

std::optional<QString> olJsonReader::text()
{
    if (!take("\""))
        return std::nullopt;
    QString text;
    while (!m_rest.empty() && m_rest.front() != '"') {
        const bool isTaken = m_rest.front() == '\\' ? takeEscape(text) : takeCharacter(text);
        if (!isTaken)
            return std::nullopt;
    }
    if (m_rest.empty())
        return std::nullopt;
    m_rest.remove_prefix(1);
    return text;
}

std::optional<std::string_view> olJsonReader::value()
{
    skipBlanks();
    const std::string_view before = m_rest;
    if (!skipValue(0))
        return std::nullopt;
    return before.substr(0, before.size() - m_rest.size());
}

bool olJsonReader::skipValue(int depth)
{
    // Deeper than any setting, and far from the end of the stack.
    constexpr int deepest = 100;
    if (depth > deepest)
        return false;
    if (take("{"))
        return skipList('}', depth);
    if (take("["))
        return skipList(']', depth);
    if (take("true") || take("false") || take("null"))
        return true;
    return m_rest.substr(0, 1) == "\"" ? text().has_value() : number().has_value();
}

bool olJsonReader::skipList(char end, int depth)
{
    const std::string_view bracket(&end, 1);
    if (take(bracket))
        return true;
    do {
        const bool isNamed = end != '}' || (text() && take(":"));
        if (!isNamed || !skipValue(depth + 1))
            return false;
    } while (take(","));
    return take(bracket);
}

bool olJsonReader::takeCharacter(QString &text)
{
    const auto character = firstCharacter(m_rest);
    if (!character || character->code < 0x20)
        return false;
    appendQString(text, character->code);
    m_rest.remove_prefix(character->length);
    return true;
}

bool olJsonReader::takeEscape(QString &text)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    if (m_rest.size() < 2)
        return false;
    const std::size_t letter = letters.find(m_rest[1]);
    if (letter != std::string_view::npos) {
        text += QLatin1Char(meanings[letter]);
        m_rest.remove_prefix(2);
        return true;
    }
    constexpr std::size_t length = 6;
    if (m_rest[1] != 'u' || m_rest.size() < length)
        return false;
    unsigned unit = 0;
    const char *const end = m_rest.data() + length;
    const auto result = std::from_chars(m_rest.data() + 2, end, unit, 16);
    if (result.ec != std::errc() || result.ptr != end)
        return false;
    text += QChar(ushort(unit));
    m_rest.remove_prefix(length);
    return true;
}
