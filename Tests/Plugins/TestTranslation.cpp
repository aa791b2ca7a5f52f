#include "Support/PluginTest.h"

#include <QCoreApplication>
#include <QTranslator>

#include <set>

namespace
{

/// A language in which every text says its context and itself.
class PseudoTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QStringLiteral("{%1}%2").arg(QLatin1String(context), QString::fromUtf8(source));
    }
};

class Translation : public PluginTest
{
protected:
    Translation()
    {
        QCoreApplication::installTranslator(&translator);
        restart();
    }
    ~Translation() override { QCoreApplication::removeTranslator(&translator); }

    PseudoTranslator translator;
};

// That every text is translated is seen in the sources.
TEST_F(Translation, NamesAndCategoriesAreTranslatedInTheirContexts)
{
    const std::set<QString> hostNames{QStringLiteral("Devices"), QStringLiteral("FileIO"),
                                      QStringLiteral("Tesselation")};
    const QString hostContext = QStringLiteral("{olPreferences}");

    for (const olPreferencesEntry *module : modules()) {
        const QString name = module->name();
        EXPECT_TRUE(module->category().isEmpty() || module->category().startsWith(hostContext)) << name.toStdString();
        // The formats bear the names of products.
        if (!name.startsWith(QLatin1Char('{')) && module->category().endsWith(QLatin1String("FileIO")))
            continue;
        const QString bare = name.mid(name.indexOf(QLatin1Char('}')) + 1);
        const QString context = hostNames.count(bare)
                                    ? hostContext
                                    : QStringLiteral("{%1}").arg(QString::fromStdString(module->className()));
        EXPECT_EQ(name, context + bare);
    }
}

} // namespace
