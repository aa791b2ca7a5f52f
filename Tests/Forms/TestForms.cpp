#include "Dialog/olPreferencesDialog.h"
#include "Forms/FormFaults.h"
#include "Forms/Pictures.h"
#include "Session/olPreferencesSession.h"
#include "Session/olTranslations.h"
#include "Support/PluginTest.h"
#include "Widgets/QOLCollapsibleFrame.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>
#include <ostream>

namespace
{

/// A language whose texts are two fifths longer than ours.
class LongerTexts : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const QString tail = QStringLiteral(" en langue longue et plus longue encore");
        return text + tail.repeated(1 + text.size() / tail.size()).left((text.size() * 2 + 4) / 5);
    }
};

struct Look {
    const char *name;
    bool isLonger;
    Qt::LayoutDirection direction;
    int language = 0;
};

void PrintTo(const Look &look, std::ostream *out) { *out << look.name; }

/// The dialog on all modules of the plug-in, in one language and direction, as large as it likes to be.
class Forms : public PluginTest, public testing::WithParamInterface<Look>
{
protected:
    Forms()
    {
        translations.load(GetParam().language);
        translations.loadOfPlugin(QStringLiteral(ORLO_PLUGIN_FILE));
        if (GetParam().isLonger)
            QCoreApplication::installTranslator(&translator);
        QApplication::setLayoutDirection(GetParam().direction); // a new language brings its own direction
        restart();
        const std::string longPath = "/data/" + std::string(200, 'x') + "/textures";
        record().set("texture search paths", std::vector<std::string>{longPath, "/textures"}, true);
        session.start();
        dialog = std::make_unique<olPreferencesDialog>(session);
        const QFontMetrics metrics = dialog->fontMetrics();
        dialog->open({});
        // On a small screen it opens narrower than it likes to be.
        dialog->resize(metrics.averageCharWidth() * 130, metrics.height() * 36);
    }
    ~Forms() override
    {
        dialog.reset();
        QCoreApplication::removeTranslator(&translator);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    /// Every page, every tab of it, unfolded and with everything on it enabled.
    template <class Use> void eachView(Use &&use)
    {
        for (olPreferencesEntry *entry : modules()) {
            QWidget &page = *entry->page();
            dialog->open(entry->name());
            for (QOLCollapsibleFrame *frame : page.findChildren<QOLCollapsibleFrame *>())
                frame->setFolded(false);
            for (QWidget *widget : page.findChildren<QWidget *>())
                widget->setEnabled(true);
            auto *tabs = page.findChild<QTabWidget *>();
            for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
                if (tabs)
                    tabs->setCurrentIndex(tab);
                QCoreApplication::processEvents();
                const QString name = tabs ? entry->name() + QLatin1String(", ") + tabs->tabText(tab) : entry->name();
                use(page, name.toStdString());
            }
        }
    }

    QTemporaryDir folder;
    LongerTexts translator;
    olTranslations translations;
    olPreferencesSession session{folder.filePath(QStringLiteral("preferences.db")), {}};
    std::unique_ptr<olPreferencesDialog> dialog;
};

void expectNone(const QStringList &faults, const std::string &place)
{
    EXPECT_TRUE(faults.isEmpty()) << place << ":\n  " << faults.join(QStringLiteral("\n  ")).toStdString();
}

TEST_P(Forms, EverythingIsInItsPlaceWithTheRoomItNeeds)
{
    eachView([this](QWidget &page, const std::string &name) {
        Pictures::take(*dialog,
                       QStringLiteral("%1 %2").arg(QLatin1String(GetParam().name), QString::fromStdString(name)));
        expectNone(FormFaults::clipped(*dialog), name);
        expectNone(FormFaults::misplaced(*dialog), name);
        const auto *area = qobject_cast<QScrollArea *>(page.parentWidget()->parentWidget());
        ASSERT_NE(area, nullptr);
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << name << " must be scrolled sideways";
    });
}

TEST_P(Forms, TheTabKeyReachesEveryControlInTheOrderOfReading)
{
    eachView(
        [this](QWidget &page, const std::string &name) { expectNone(FormFaults::unreached(*dialog, page), name); });
}

TEST_P(Forms, TheOtherDirectionOfReadingIsTheMirrorImage)
{
    eachView([this](QWidget &, const std::string &name) { expectNone(FormFaults::unmirrored(*dialog), name); });
}

INSTANTIATE_TEST_SUITE_P(Looks, Forms,
                         testing::Values(Look{"plain", false, Qt::LeftToRight}, Look{"longer", true, Qt::LeftToRight},
                                         Look{"mirrored", false, Qt::RightToLeft},
                                         Look{"mirrored-longer", true, Qt::RightToLeft}),
                         [](const auto &look) {
                             return QString::fromLatin1(look.param.name).remove('-').toStdString();
                         });

/// The languages that people choose.
using FormsInLanguages = Forms;

TEST_P(FormsInLanguages, EveryTextHasItsRoomAndItsLetters)
{
    eachView([this](QWidget &, const std::string &name) {
        Pictures::take(*dialog,
                       QStringLiteral("%1 %2").arg(QLatin1String(GetParam().name), QString::fromStdString(name)));
        expectNone(FormFaults::clipped(*dialog), name);
        expectNone(FormFaults::misplaced(*dialog), name);
        expectNone(FormFaults::withoutLetters(*dialog), name);
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, FormsInLanguages,
                         testing::Values(Look{"zh", false, Qt::LeftToRight, 1}, Look{"ja", false, Qt::LeftToRight, 2},
                                         Look{"ko", false, Qt::LeftToRight, 3}),
                         [](const auto &look) { return std::string(look.param.name); });

} // namespace
