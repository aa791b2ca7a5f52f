#include "Exchange/Formats/olVrmlText.h"

#include <Inventor/SbVec3f.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <cctype>
#include <cstring>

namespace
{

constexpr float marker = 7654321;

bool isName(char letter) { return !isspace(static_cast<unsigned char>(letter)) && !strchr("{}[],#\"", letter); }

/// Behind what is no word: blanks, brackets, comments and texts.
int skipped(const QByteArray &text, int at)
{
    if (text.at(at) == '#') {
        const int end = text.indexOf('\n', at);
        return end < 0 ? text.size() : end;
    }
    if (text.at(at) != '"')
        return isName(text.at(at)) ? at : at + 1;
    for (++at; at < text.size() && text.at(at) != '"'; ++at)
        at += int(text.at(at) == '\\');
    return qMin(at + 1, text.size());
}

/// Behind numbers, texts, truths, or a list of them.
int behindValue(const QByteArray &text, int at)
{
    bool isInList = false;
    while (at < text.size()) {
        const char letter = text.at(at);
        const bool isWord = isalpha(static_cast<unsigned char>(letter)) || letter == '_';
        const bool isTruth = text.mid(at, 4) == "TRUE" || text.mid(at, 5) == "FALSE";
        if (!isInList && (letter == '{' || letter == '}' || (isWord && !isTruth)))
            return at;
        isInList = letter == '[' || (isInList && letter != ']');
        const int behind = skipped(text, at);
        at = behind > at ? behind : at + 1;
        if (isTruth)
            at += 4;
        if (letter == ']')
            return at;
    }
    return at;
}

/// A name, a text with its quotation marks or a bracket; nothing at the end.
QByteArray nextToken(const QByteArray &text, int &at)
{
    while (at < text.size()) {
        const int start = at;
        const char letter = text.at(at);
        while (at < text.size() && isName(text.at(at)))
            ++at;
        at = at > start ? at : skipped(text, at);
        if (isName(letter) || strchr("\"[]{}", letter))
            return text.mid(start, at - start);
    }
    return {};
}

QByteArray nothingOf(const QByteArray &type)
{
    static const QHash<QByteArray, QByteArray> values{
        {"SFBool", "FALSE"},  {"SFString", "\"\""}, {"SFNode", "NULL"},   {"SFVec2f", "0 0"},
        {"SFVec3f", "0 0 0"}, {"SFColor", "0 0 0"}, {"SFImage", "0 0 0"}, {"SFRotation", "0 0 1 0"}};
    return type.startsWith("MF") ? QByteArray("[]") : values.value(type, "0");
}

/// Behind the file stands the name that the prototype has in it.
QString fileOf(const QString &url) { return url.section(QLatin1Char('#'), 0, 0); }

} // namespace

olVrmlText::olVrmlText(const QByteArray &text, const QDir &folder, int firstNumber, const Fields &leftOut)
    : m_folder(folder), m_first(firstNumber), m_leftOut(leftOut)
{
    for (int at = 0; at < text.size();) {
        const int start = at;
        at = skipped(text, at);
        if (at == start) {
            at = word(text, at);
            continue;
        }
        m_content += text.mid(start, at - start);
        if (text.at(start) == '{')
            m_nodes.push_back(m_lastWord);
        else if (text.at(start) == '}' && !m_nodes.empty())
            m_nodes.pop_back();
    }
}

int olVrmlText::numberOf(const SoVRMLGroup &group)
{
    const SbVec3f &center = group.bboxCenter.getValue();
    return center[1] == marker && center[2] == -marker ? int(center[0]) : -1;
}

int olVrmlText::word(const QByteArray &text, int at)
{
    const int start = at;
    while (at < text.size() && isName(text.at(at)))
        ++at;
    const QByteArray name = text.mid(start, at - start);
    if (!m_nodes.empty() && m_leftOut.count({m_nodes.back(), name}) > 0)
        return behindValue(text, at);
    m_lastWord = name;
    if (name == "EXTERNPROTO")
        return outsidePrototype(text, at);
    int open = at;
    while (open < text.size() && isspace(static_cast<unsigned char>(text.at(open))))
        ++open;
    if (name == "WWWInline" && open < text.size() && text.at(open) == '{')
        return oldLink(text, open + 1);
    const bool isLink = name == "Inline" && open < text.size() && text.at(open) == '{';
    m_content += isLink ? QByteArray() : name;
    return isLink ? link(text, open + 1) : at;
}

int olVrmlText::link(const QByteArray &text, int at)
{
    QStringList urls;
    while (at < text.size() && text.at(at) != '}') {
        const int end = qMax(at + 1, skipped(text, at));
        if (text.at(at) == '"')
            urls << m_folder.filePath(QFile::decodeName(text.mid(at + 1, end - at - 2)));
        at = end;
    }
    m_content += "Group { bboxCenter " + QByteArray::number(m_first + int(m_links.size())) + ' ' +
                 QByteArray::number(int(marker)) + ' ' + QByteArray::number(int(-marker)) + " }";
    m_links.push_back(urls);
    return at + 1;
}

/// Those of version 1 are not followed.
int olVrmlText::oldLink(const QByteArray &text, int at)
{
    QByteArray token = nextToken(text, at);
    for (; !token.isEmpty() && token != "}"; token = nextToken(text, at)) {
        if (token.startsWith('"'))
            m_passedOver << QFile::decodeName(token.mid(1, token.size() - 2));
    }
    m_content += "Group { }";
    return at;
}

/// Where the file of a prototype is not there, nothing stands in its places.
int olVrmlText::outsidePrototype(const QByteArray &text, int at)
{
    int behind = at;
    const QByteArray name = nextToken(text, behind);
    QByteArray fields = nextToken(text, behind);
    for (QByteArray kind = nextToken(text, behind); !kind.isEmpty() && kind != "]"; kind = nextToken(text, behind)) {
        const QByteArray type = nextToken(text, behind);
        fields += kind + ' ' + type + ' ' + nextToken(text, behind) + ' ';
        if (kind == "field" || kind == "exposedField")
            fields += nothingOf(type) + ' ';
    }
    const QByteArray head = "EXTERNPROTO" + text.mid(at, behind - at);
    QStringList urls;
    QByteArray token = nextToken(text, behind);
    const bool isList = token == "[";
    for (token = isList ? nextToken(text, behind) : token; token.startsWith('"');
         token = isList ? nextToken(text, behind) : QByteArray())
        urls << m_folder.filePath(QFile::decodeName(token.mid(1, token.size() - 2)));
    for (const QString &url : qAsConst(urls)) {
        if (QFileInfo(fileOf(url)).isFile()) {
            m_content += head + " \"" + QFile::encodeName(url) + '"';
            return behind;
        }
    }
    m_missing << fileOf(urls.value(0));
    m_content += "PROTO " + name + ' ' + fields + "] { Group { } }";
    return behind;
}
