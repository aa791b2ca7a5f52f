#pragma once

#include <QByteArray>
#include <QDir>
#include <QStringList>

#include <set>
#include <utility>
#include <vector>

class SoVRMLGroup;

/// A VRML text of which Coin reads no further file: what a text names may be itself, or a pipe that has no end. Where
/// it wants one, a group bears a number that says which.
class olVrmlText
{
public:
    /// Fields, by the node that has them, that are left out.
    using Fields = std::set<std::pair<QByteArray, QByteArray>>;

    /// What the text refers to is looked for in the folder; its numbers begin at the first.
    olVrmlText(const QByteArray &text, const QDir &folder, int firstNumber, const Fields &leftOut);

    [[nodiscard]] const QByteArray &content() const { return m_content; }

    /// The places of the files in the order of their numbers, each with several to choose from.
    [[nodiscard]] const std::vector<QStringList> &links() const { return m_links; }

    /// Files of prototypes that are not there.
    [[nodiscard]] const QStringList &missing() const { return m_missing; }

    /// Files of which nothing is read.
    [[nodiscard]] const QStringList &passedOver() const { return m_passedOver; }

    /// The number of a group; -1 for all others.
    [[nodiscard]] static int numberOf(const SoVRMLGroup &group);

private:
    int word(const QByteArray &text, int at);
    int link(const QByteArray &text, int at);
    int oldLink(const QByteArray &text, int at);
    int outsidePrototype(const QByteArray &text, int at);

    QDir m_folder;
    int m_first;
    const Fields &m_leftOut;
    std::vector<QByteArray> m_nodes;
    QByteArray m_lastWord;
    QByteArray m_content;
    std::vector<QStringList> m_links;
    QStringList m_missing;
    QStringList m_passedOver;
};
