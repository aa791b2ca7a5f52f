#pragma once

#include "Dialog/olPreferencesDialog.h"
#include "Kernel/olPreferences.h"
#include "Session/olPreferencesSession.h"
#include "Utilities/olMessage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

class StudioPage;

/// What a host finds on a page whose module lets it read single settings.
class StudioAccess : public QObject
{
    Q_OBJECT

public:
    explicit StudioAccess(StudioPage &page);

    [[nodiscard]] Q_INVOKABLE QVariant value(const QString &key) const;
    [[nodiscard]] Q_INVOKABLE QVariantMap describe(const QString &key) const;
    [[nodiscard]] Q_INVOKABLE QString text(const QString &key, const QVariant &value) const;

private:
    StudioPage &m_page;
};

/// A page with one control of each kind, higher than any screen, and a rule and a question of its own.
class StudioPage : public QWidget
{
    Q_OBJECT

public:
    StudioPage();

    QTabWidget *tabs = new QTabWidget;
    QCheckBox *shadows = new QCheckBox(QStringLiteral("Cast &Shadows"));
    QLabel *samplesLabel = new QLabel(QStringLiteral("S&amples"));
    QSpinBox *samples = new QSpinBox;
    QComboBox *mode = new QComboBox;
    QLineEdit *scale = new QLineEdit;
    QLineEdit *title = new QLineEdit;
    QCheckBox *hidden = new QCheckBox(QStringLiteral("Hidden away"));
    int questions = 0;
    bool isFilling = false;

private:
    void tag(QWidget &control, const char *key);
};

/// A module of that page: five settings with a control, one without, and one that the page hides.
class StudioModule : public olPreferences
{
public:
    explicit StudioModule(const QString &name = QStringLiteral("Studio"));
    ~StudioModule() override;

    void setDefaults(olMessage &, bool flag) override;
    void updateGUI() override;
    void updateData() override;
    void applyPreferences() override;

    template <class T> [[nodiscard]] static T value(const std::string &key)
    {
        return boost::any_cast<T>(getData().get(key));
    }

    StudioPage page;
    int applied = 0;
    std::vector<std::string> changed;
};

/// A dialog on a session with the studio module, a site file that may lock, and nothing stored.
class DialogTest : public testing::Test
{
protected:
    DialogTest();
    ~DialogTest() override;

    /// With a site file of that text.
    void start(const QByteArray &site = {});

    [[nodiscard]] QPushButton *button(QDialogButtonBox::StandardButton which) const;
    [[nodiscard]] QPushButton *changes() const { return dialog->findChild<QPushButton *>(QStringLiteral("changes")); }
    [[nodiscard]] QLineEdit *search() const { return dialog->findChild<QLineEdit *>(QStringLiteral("search")); }

    /// Once all that was done has been taken in.
    [[nodiscard]] bool canApply() const;

    /// The entries of the tree in sight.
    [[nodiscard]] QStringList listed() const;

    /// Presses that button of the next modal box; the test fails where none opens.
    void answer(const QString &text);

    /// The context menu's action of that name, opened on the widget; null where there is none.
    [[nodiscard]] QAction *menuAction(QWidget &widget, const QString &name) const;

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
    QString store = folder.filePath(QStringLiteral("store/preferences.db"));
    QString siteFile = folder.filePath(QStringLiteral("site.json"));
    StudioModule module;
    std::unique_ptr<olPreferencesSession> session;
    std::unique_ptr<olPreferencesDialog> dialog;
    int answered = 0;
    int asked = 0;
};
