#pragma once

#include "Dialog/olPreferencesDialog.h"
#include "Framework/olModule.h"
#include "Session/olPreferencesSession.h"
#include "Support/BoxWatch.h"
#include "Utilities/olMessage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

/// A page with one control of each kind, higher than any screen, and a rule and a question of its own.
class StudioPage : public olPageWidget
{
public:
    StudioPage();

    QTabWidget *tabs = new QTabWidget;
    QCheckBox *shadows = new QCheckBox("Cast &Shadows");
    QLabel *samplesLabel = new QLabel("S&amples");
    QSpinBox *samples = new QSpinBox;
    QComboBox *mode = new QComboBox;
    QLineEdit *scale = new QLineEdit;
    QLineEdit *title = new QLineEdit;
    QCheckBox *hidden = new QCheckBox("Hidden away");
    int questions = 0;
    bool isFilling = true; ///< at first with the defaults
};

/// A module of that page, made as those of the plug-in are: five settings with a control, one that the page hides, and
/// one without. Its keys begin with its name.
class StudioModule : public olModule<StudioPage>
{
public:
    explicit StudioModule(const QString &name = "Studio");

    void updateGUI() override;
    void applyPreferences() override;

    template <class T> [[nodiscard]] static T value(const std::string &key)
    {
        return boost::any_cast<T>(getData().get(key));
    }

    StudioPage &page = olModule::page();
    int applied = 0;
    std::vector<std::string> changed;
};

/// A dialog on a session with the studio module, a site file that may lock, and nothing stored.
class DialogTest : public testing::Test
{
protected:
    ~DialogTest() override;

    /// With a site file of that text.
    void start(const QByteArray &site = {});

    [[nodiscard]] QPushButton *button(QDialogButtonBox::StandardButton which) const;
    [[nodiscard]] QPushButton *changes() const { return dialog->findChild<QPushButton *>("changes"); }
    [[nodiscard]] QLineEdit *search() const { return dialog->findChild<QLineEdit *>("search"); }

    /// Once all that was done has been taken in.
    [[nodiscard]] bool canApply() const;

    /// Whether a line of the dialog says that.
    [[nodiscard]] bool says(const QString &text) const;

    /// The entries of the tree in sight.
    [[nodiscard]] QStringList listed() const;

    /// The action of that name in the widget's context menu, which opens at the place for that.
    [[nodiscard]] static QAction &menuAction(QWidget &widget, const char *name, const QPoint &place);
    [[nodiscard]] static QAction &menuAction(QWidget &widget, const char *name)
    {
        return menuAction(widget, name, widget.rect().center());
    }

    /// The window of that type in front of the dialog.
    template <class Window> [[nodiscard]] Window *opened() const
    {
        for (Window *window : dialog->findChildren<Window *>()) {
            if (window->isVisible())
                return window;
        }
        return nullptr;
    }

    QTemporaryDir folder;
    QString store = folder.filePath("store/preferences.db");
    QString siteFile = folder.filePath("site.json");
    StudioModule module;
    std::unique_ptr<olPreferencesSession> session;
    std::unique_ptr<olPreferencesDialog> dialog;
    BoxAnswers boxes;
};
