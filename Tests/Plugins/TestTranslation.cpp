#include "State/olPreferencesRegistry.h"
#include "Support/PluginTest.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>
#include <QTranslator>
#include <QTreeWidget>

#include <map>
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

bool isTranslated(const QString &text) { return text.startsWith(QLatin1Char('{')); }

/// Texts that stand for themselves in every language.
bool needsNoTranslation(const QString &text)
{
    static const QRegularExpression numberOrNothing(QStringLiteral(R"(^[-0-9. x]*$)"));
    static const std::set<QString> literals{QStringLiteral("ORLO"), QStringLiteral("Contura"), QStringLiteral("Mirra")};
    return numberOrNothing.match(text).hasMatch() || literals.count(text) != 0;
}

/// The texts of a widget that a person can read.
QStringList textsOf(const QWidget &widget)
{
    // What stands in a field is not the page's.
    const bool isField = qobject_cast<const QLineEdit *>(&widget) != nullptr;
    QStringList texts;
    for (const char *name : {"toolTip", "accessibleName", "caption", "title", "placeholderText", "text"}) {
        if (!isField || qstrcmp(name, "text") != 0)
            texts << widget.property(name).toString();
    }
    // What a person may also type is meant for a program, word by word.
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget); combo && !combo->isEditable()) {
        for (int row = 0; row < combo->count(); ++row)
            texts << combo->itemText(row);
    }
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            texts << tabs->tabText(index);
    }
    if (const auto *table = qobject_cast<const QTableWidget *>(&widget)) {
        for (int column = 0; column < table->columnCount(); ++column)
            texts << (table->horizontalHeaderItem(column) ? table->horizontalHeaderItem(column)->text() : QString());
    }
    if (const auto *tree = qobject_cast<const QTreeWidget *>(&widget); tree && !tree->isHeaderHidden()) {
        for (int column = 0; column < tree->columnCount(); ++column)
            texts << tree->headerItem()->text(column);
    }
    return texts;
}

bool isInsideHostWidget(const QWidget *widget, const QWidget *page)
{
    for (; widget && widget != page; widget = widget->parentWidget()) {
        if (widget->property("olInnerPart").toBool() || widget->objectName().startsWith(QLatin1String("qt_")))
            return true;
    }
    return false;
}

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

TEST_F(Translation, EveryTextOnEveryPageIsTranslated)
{
    for (const olPreferencesEntry *module : modules()) {
        if (!module->page())
            continue;
        EXPECT_TRUE(isTranslated(module->page()->windowTitle())) << module->className();
        const auto widgets = module->page()->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (isInsideHostWidget(widget, module->page()))
                continue;
            const QStringList texts = textsOf(*widget);
            for (const QString &text : texts) {
                EXPECT_TRUE(isTranslated(text) || needsNoTranslation(text))
                    << module->className() << ' ' << widget->objectName().toStdString() << ": " << text.toStdString();
            }
        }
    }
}

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
