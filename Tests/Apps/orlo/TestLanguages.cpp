#include "Forms/FormFaults.h"
#include "Forms/Pictures.h"
#include "WindowTest.h"
#include "olImportDialog.h"
#include "olStartFault.h"

#include "Dialog/olConsentBox.h"
#include "Dialog/olPreferencesDialog.h"
#include "Dialog/olSettingsTransfer.h"
#include "Exchange/olExportScene.h"
#include "Exchange/olImportJob.h"
#include "Model/olScene.h"
#include "Session/olTranslations.h"
#include "View/olViewport.h"
#include "Widgets/QOLSlider.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>

namespace
{

/// Comes before the window, whose texts are then of that language.
struct Language {
    explicit Language(int language)
    {
        translations.load(language);
        translations.loadOfToolkit();
        translations.loadOfPlugin(pluginUnderTest());
    }
    olTranslations translations;
};

/// The viewer's own windows, as the preferences' pages are looked at elsewhere.
class ViewerInLanguages : public testing::WithParamInterface<int>, private Language, public WindowTest
{
protected:
    ViewerInLanguages() : Language(GetParam()) {}

    void look(QWidget &shown, const QString &name)
    {
        // A layout follows its texts some rounds later, and on a busy machine one round may last long.
        QTest::qWait(50);
        (void)QTest::qWaitFor([&shown] { return FormFaults::clipped(shown).isEmpty(); }, 1000);
        Pictures::take(shown, olTranslations::languages()[GetParam()] + QLatin1Char(' ') + name);
        QStringList faults = FormFaults::english(shown);
        // Formats go by their own names.
        for (const olPreferencesEntry *entry : modules())
            faults.removeAll(entry->name());
        faults << FormFaults::withoutLetters(shown);
        // How wide its columns are is the toolkit's own affair.
        if (!qobject_cast<QFileDialog *>(&shown))
            faults << FormFaults::clipped(shown);
        for (const QScrollArea *area : shown.findChildren<QScrollArea *>())
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << name.toStdString() << " must be scrolled sideways";
        EXPECT_TRUE(faults.isEmpty()) << name.toStdString() << ":\n  " << faults.join("\n  ").toStdString();
    }

    static QList<QDialog *> openDialogs()
    {
        QList<QDialog *> open;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *dialog = qobject_cast<QDialog *>(widget);
            if (dialog && dialog->isVisible())
                open << dialog;
        }
        return open;
    }

    /// What the call opens, be it that it waits for that; it is closed again.
    void lookAtWhatOpens(const QString &name, const std::function<void()> &call)
    {
        const QList<QDialog *> before = openDialogs();
        bool isSeen = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            for (QDialog *dialog : openDialogs()) {
                if (isSeen || before.contains(dialog))
                    continue;
                isSeen = true;
                look(*dialog, name);
                dialog->done(0);
            }
        });
        timer.start(20);
        call();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen && openDialogs().size() <= before.size(); }, 30000))
            << name.toStdString();
    }

    QAction &translated(const char *context, const char *text)
    {
        const QString wanted = QCoreApplication::translate(context, text);
        for (QAction *each : window.findChildren<QAction *>()) {
            if (each->text() == wanted)
                return *each;
        }
        throw std::runtime_error(std::string("no action ") + text);
    }
};

TEST_P(ViewerInLanguages, HasRoomForItsTextsInItsOwnWindows)
{
    window.showIntegratorPanels();
    view.select({idOf(node("Housing"))});
    const QString measuring = QCoreApplication::translate("olFactsPanel", "measuring...");
    const auto isMeasuring = [&](const QLabel *label) { return label->text() == measuring; };
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::none_of(labels.begin(), labels.end(), isMeasuring); }, 20000));
    look(window, "window");
    for (QMenu *menu : window.findChildren<QMenu *>()) {
        if (menu->isEmpty())
            continue;
        menu->popup(window.mapToGlobal(QPoint(50, 50)));
        look(*menu, "menu " + menu->title().remove('&'));
        menu->close();
    }
    lookAtWhatOpens("about", [this] { translated("olMainWindow", "&About ORLO").trigger(); });
    lookAtWhatOpens("import file", [this] { translated("olModelFiles", "&Import...").trigger(); });
    lookAtWhatOpens("export file", [this] { translated("olModelFiles", "&Export...").trigger(); });
    lookAtWhatOpens("fault of the store", [] { (void)olAskAboutStore("/store"); });
    lookAtWhatOpens("fault of the plug-in", [] { (void)olAskAboutPlugin("/plug-in"); });
}

TEST_P(ViewerInLanguages, HasRoomForTheTextsOfAnImport)
{
    for (const char *name : {"model.step", "model.stl"}) {
        const QString file = path(name);
        ASSERT_EQ(olExportScene(window.scene().document(), file).error(), "");
        olImportDialog dialog({olImportJob::of(file)}, true, &window, [](const std::string &) { return QString(); });
        dialog.show();
        look(dialog, QString("import of ") + name);
        dialog.showReading();
        dialog.setPercent(40);
        look(dialog, QString("reading of ") + name);
        dialog.showOutcome(olImportDialog::Success::WithRemarks, "-");
        look(dialog, QString("outcome of ") + name);
    }
}

TEST_P(ViewerInLanguages, HasRoomForTheTextsAroundThePages)
{
    olPreferencesDialog &dialog = window.openPreferences();
    ASSERT_TRUE(dialog.openAt("Camera fov"));
    dialog.resize(1100, 700);
    look(dialog, "preferences");
    const QString fov = QCoreApplication::translate("olCameraPreferencesGUI", "Field of View");
    for (const QString &name : {QString("field of view"), fov}) {
        dialog.findChild<QLineEdit *>("search")->setText(name);
        EXPECT_EQ(dialog.findChild<QTreeView *>("found")->model()->index(0, 0).data().toString(), fov);
    }
    look(dialog, "search");
    dialog.findChild<QLineEdit *>("search")->clear();
    lookAtWhatOpens("question", [&] {
        olConsentBox box(*session.warning("WebInterface enable web server2", true), &dialog);
        box.exec();
    });
    QMenu &more = *dialog.findChild<QPushButton *>("more")->menu();
    more.popup(dialog.mapToGlobal(QPoint(20, 20)));
    look(more, "more");
    more.close();

    dialog.transfer().exportTo(path("preferences.json"));
    look(dialog, "note");
    dialog.findChild<QOLSlider *>("fieldOfView")->setValue(33);
    lookAtWhatOpens("import preview", [&] { dialog.transfer().importFrom(path("preferences.json")); });
    lookAtWhatOpens("changes", [&] { dialog.findChild<QAbstractButton *>("changes")->click(); });
    lookAtWhatOpens("loss", [&] { dialog.reject(); });
    ASSERT_TRUE(dialog.apply());
    lookAtWhatOpens("history", [&] { translated("olSettingsTransfer", "&History...").trigger(); });
    for (QMenu *menu : more.findChildren<QMenu *>() + dialog.findChildren<QMenu *>())
        emit menu->aboutToShow();
    lookAtWhatOpens("profile", [&] { translated("olProfilesMenu", "&Save As...").trigger(); });
    lookAtWhatOpens("import of preferences", [&] { more.actions().first()->trigger(); });
    dialog.transfer().exportTo("/none/exported.json");
    look(dialog, "error");
}

INSTANTIATE_TEST_SUITE_P(Languages, ViewerInLanguages, testing::Values(1, 2, 3), [](const auto &language) {
    return olTranslations::languages()[language.param].toStdString();
});

} // namespace
