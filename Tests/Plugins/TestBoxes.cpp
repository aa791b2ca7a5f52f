#include "State/olPreferencesRegistry.h"
#include "Support/PluginTest.h"
#include "Utilities/olWithoutMnemonic.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <string>
#include <vector>

namespace
{

/// Says of every dialog that opens what a person sees, and closes it.
class DialogWatch : public QObject
{
public:
    DialogWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
        // Which button Enter and Escape press is decided when it is shown.
        if (dialog && dialog->isWindow()) {
            QTimer::singleShot(0, dialog, [this, dialog] {
                seen.push_back(described(*dialog));
                close(*dialog);
            });
        }
        return false;
    }

    /// What a chooser is answered with; it is cancelled otherwise.
    QString directory;
    std::vector<std::string> seen;

private:
    void close(QDialog &dialog) const
    {
        auto *chooser = qobject_cast<QFileDialog *>(&dialog);
        if (!chooser || directory.isEmpty())
            return dialog.reject();
        chooser->selectFile(directory);
        QMetaObject::invokeMethod(chooser, "accept");
    }

    static std::string owner(const QDialog &dialog)
    {
        for (const olPreferencesEntry *module : olPreferencesRegistry::the().entries()) {
            if (module->page() == dialog.parentWidget())
                return module->name().toStdString();
        }
        return "nobody";
    }

    static std::string described(const QDialog &dialog)
    {
        const std::string title = owner(dialog) + "'s \"" + dialog.windowTitle().toStdString() + '"';
        if (const auto *chooser = qobject_cast<const QFileDialog *>(&dialog))
            return title + (chooser->testOption(QFileDialog::ShowDirsOnly) ? " for directories" : " for files");
        const auto *box = qobject_cast<const QMessageBox *>(&dialog);
        if (!box)
            return title;
        std::string buttons;
        for (QAbstractButton *button : box->buttons()) {
            buttons += std::string(", ") + olWithoutMnemonic(button->text()).toStdString();
            if (button == box->defaultButton() || button == box->escapeButton())
                buttons += std::string(button == box->defaultButton() ? " (Enter" : " (") +
                           (button == box->escapeButton() ? " Escape)" : ")");
        }
        return title + " with icon " + std::to_string(box->icon()) + ": " + box->text().toStdString() + buttons;
    }
};

using Lines = std::vector<std::string>;

class Boxes : public PluginTest
{
protected:
    Boxes()
    {
        for (const olPreferencesEntry *module : modules())
            fill(module->name().toUtf8());
        watch.seen.clear();
    }

    /// What opens when a slot of a page is called.
    Lines opened(const char *moduleName, const char *slot)
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(module(moduleName).page(), slot)) << slot;
        QCoreApplication::processEvents();
        return std::exchange(watch.seen, {});
    }

    DialogWatch watch;
};

TEST_F(Boxes, ChoosersOfDirectoriesShowNothingElseAndBelongToTheirPageButForTheHelp)
{
    EXPECT_EQ(opened("Help", "clickedGetHelpPath"), Lines{"nobody's \"Help Path\" for directories"});
    EXPECT_EQ(opened("FileIO", "clickedAdd"), Lines{"FileIO's \"Select Texture Search Directory\" for directories"});
    EXPECT_EQ(opened("FileIO", "clickedGetTmpPath"), Lines{"FileIO's \"Select Temporary File Path\" for directories"});
    EXPECT_EQ(opened("Mirra", "clickedSetMirraLocation"), Lines{"Mirra's \"Set Mirra Location\" for directories"});
}

TEST_F(Boxes, MessagesBelongToTheirPage)
{
    const QTemporaryDir known;
    record().set("texture search paths", std::vector<std::string>{known.path().toStdString()}, true);
    module("FileIO").updateGUI();
    watch.directory = known.path();
    EXPECT_EQ(opened("FileIO", "clickedAdd"),
              (Lines{"FileIO's \"Select Texture Search Directory\" for directories",
                     "FileIO's \"ORLO 2026\" with icon 1: Path already inserted!, OK (Enter)"}));

    control<QTreeWidget>("Tesselation", "qualities").topLevelItem(0)->setText(0, "0");
    EXPECT_EQ(
        std::exchange(watch.seen, {}),
        Lines{"Tesselation's \"Tesselation\" with icon 2: Only positive non zero values are allowed!, OK (Enter)"});

    const Lines restart{"MainWindow's \"Language Preferences Change\" with icon 1: Please restart ORLO so that your "
                        "language changes can take effect., OK (Enter)"};
    control<QComboBox>("MainWindow", "userLanguage").setCurrentIndex(2);
    module("MainWindow").updateData();
    EXPECT_EQ(std::exchange(watch.seen, {}), restart);
    module("MainWindow").setDefaults(false);
    EXPECT_EQ(std::exchange(watch.seen, {}), restart);

    control<QCheckBox>("WebInterface", "enableWebServer").setChecked(true);
    EXPECT_EQ(
        std::exchange(watch.seen, {}),
        Lines{"WebInterface's \"Enable Web Server\" with icon 2: Do you really want to enable the Web "
              "Server?\nThe Web Server allows the execution of Python commands from remote locations!, Enable, Do "
              "Not Enable (Enter Escape)"});
}

TEST_F(Boxes, TheColourDialogBelongsToThePageAndOpensOnASelectedRowAlone)
{
    EXPECT_EQ(opened("Render Options", "clickedChooseColor"), Lines{});
    control<QTableWidget>("Render Options", "backgroundTable").selectRow(0);
    const Lines dialogs = opened("Render Options", "clickedChooseColor");
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs.front().find("Render Options's"), 0u) << dialogs.front();
}

} // namespace
