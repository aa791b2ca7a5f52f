#pragma once

#include "State/olEdition.h"

#include <QString>
#include <QStringList>

/// The command line of the tool taken apart.
struct olPrefsOptions {
    /// The language that is stored.
    static constexpr auto ofUser = "user";

    olEdition edition = olEdition::Professional;
    QString applicationName = QStringLiteral("orlo");
    QString store;                           ///< empty: the user's own
    QString plugin;                          ///< empty: where the program finds it
    QString language = QStringLiteral("en"); ///< of the messages: one of olTranslations::languages(), or ofUser
    bool isAgreed = false;                   ///< to the questions that go with some values
    bool help = false;
    bool version = false;
    QString command;
    QStringList arguments; ///< of the command

    /// Throws olToolError where an option is not known or its value is none.
    [[nodiscard]] static olPrefsOptions parsed(const QStringList &arguments);

    /// Of the messages where no store has a say in it.
    [[nodiscard]] int languageIndex() const;

    /// The paragraph of the help about the options.
    [[nodiscard]] static QString optionsHelp();
};
