#pragma once

#include "olHostExport.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The texts of host, toolkit and plug-in in one language. They hold for what is made while this exists; English is
/// what everything is written in.
class ORLO_HOST_EXPORT olTranslations
{
public:
    olTranslations();
    ~olTranslations();
    olTranslations(const olTranslations &) = delete;
    olTranslations &operator=(const olTranslations &) = delete;

    /// "en", "zh", "ja" and "ko", in the order of the setting's values.
    [[nodiscard]] static const QStringList &languages();

    /// Takes the texts of the host, in place of those of another language. A file that is missing or
    /// broken leaves its texts English, and a line in the log.
    void load(int language);

    /// Takes those of the toolkit, in the same language: its buttons, dialogs and dates.
    void loadOfToolkit();

    /// Takes the texts of a plug-in, which lie in the folder "translations" beside its library, in the same language.
    void loadOfPlugin(const QString &library);

    /// All that a translated text is in English, both without the mark of a mnemonic; empty where it was not
    /// translated.
    [[nodiscard]] static QStringList english(const QString &text);

private:
    void add(const QString &name, const QStringList &folders);

    int m_language = 0;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
