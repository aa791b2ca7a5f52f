#pragma once

#include "Dialog/olSettingMarks.h"
#include "olHostExport.h"

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QStackedWidget;
class olDocumentView;
class olFoundRows;
class olFoundSettings;
class olMessageLine;
class olModuleTree;
class olOutsideLine;
class olPageFrame;
class olPendingChanges;
class olPreferencesEntry;
class olPreferencesSession;
class olSettingMenu;
class olSettingTips;
class olSettingWords;
class olSettingsSearch;
class olSettingsTransfer;
struct olSettingWarning;
struct olPendingChange;

/// Shows the modules as entries under their categories, with their pages. Everything done in it is pending until OK or
/// Apply, and Cancel drops it. Not modal: the view stays usable beside it.
class ORLO_HOST_EXPORT olPreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /// The session must outlive the dialog. The pages stay the modules': they are lent, and given back when a module
    /// asks or the dialog goes.
    explicit olPreferencesDialog(olPreferencesSession &session, QWidget *parent = nullptr);
    ~olPreferencesDialog() override;

    /// Opens the dialog, or brings it to the front, on the module of that name; an empty or unknown name keeps the page
    /// that was shown last.
    void open(const QString &name);
    void open() override { open(QString()); }

    /// The same at the control of a setting. False, with nothing opened, where no page has one.
    [[nodiscard]] bool openAt(const QString &key);

    /// Offers to preview edits in the view: for a host that has one.
    void offerPreview();

    /// How wide it must be for the page shown to need no scrolling sideways, where the modules stand above the page; in
    /// pixels. The same for every page that is narrow.
    [[nodiscard]] int panelWidth() const;

    /// Files, profiles and earlier saves.
    [[nodiscard]] olSettingsTransfer &transfer() { return *m_transfer; }

signals:
    /// What was applied takes effect at the next start, and that shall be now. Asked for only where this is connected.
    void restartAsked();

public slots:
    /// Applies and closes; stays open where the host has something to tell about the saving.
    void accept() override;

    /// With edits pending, asks first whether to apply them, to discard them or to stay.
    void reject() override;

    /// Stores and applies every page shown since the dialog opened. False, with the reason on the dialog and the edits
    /// kept, when they cannot be stored.
    bool apply();

    /// Makes the defaults of the page shown, or of all settings, pending.
    void restorePage();
    void restoreAll();

    /// Opens the list of pending changes.
    void showChanges();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QWidget *buildLeft();
    [[nodiscard]] QWidget *buildRight();
    [[nodiscard]] QWidget *buildBottom();
    void connectParts();
    void recall();
    void place();
    void remember() const;

    void listModules();
    void showCurrent();
    [[nodiscard]] olPageFrame *frameOf(olPreferencesEntry &entry);
    void lockSettings(olPreferencesEntry &entry, olPageFrame &frame);
    void listLocked(olPreferencesEntry &entry);
    [[nodiscard]] std::vector<QWidget *> tabStops() const;
    void giveBack(QWidget *page);

    bool filter(); ///< whether something is searched for
    bool findSettings();
    void revealFirstHit();
    void showFound();
    void goToFound(int row);
    void openMenuOfFound(int row, const QPoint &globalPosition);
    void goTo(const QString &key);
    [[nodiscard]] std::vector<olSettingMarks::Mark> marksOn(const olPreferencesEntry &entry) const;

    void showHelp();
    void refresh();
    [[nodiscard]] bool store();
    bool tellNotices();
    void tellWhatWaits(const std::vector<olPendingChange> &applied);
    [[nodiscard]] bool mayLeave();
    [[nodiscard]] bool isAgreed(const olSettingWarning &question);

    olPreferencesSession &m_session;
    std::unique_ptr<olPendingChanges> m_pending;
    std::unique_ptr<olSettingsSearch> m_search;
    std::unique_ptr<olSettingWords> m_words;
    std::unique_ptr<olFoundRows> m_found;
    std::unique_ptr<olSettingsTransfer> m_transfer;
    std::unique_ptr<olSettingMenu> m_menu;
    std::unique_ptr<olSettingTips> m_tips;
    QLineEdit *m_searchField;
    QCheckBox *m_changedOnly;
    QPushButton *m_more;
    olModuleTree *m_tree;
    QSplitter *m_splitter;
    QLabel *m_title;
    QPushButton *m_locked;
    QLabel *m_pageNote; ///< what holds for all settings of the page
    QPushButton *m_restorePage;
    QStackedWidget *m_pages;
    QLabel *m_nothing;
    olFoundSettings *m_foundList;
    olMessageLine *m_message;
    olOutsideLine *m_outside;
    QPushButton *m_changes;
    QCheckBox *m_preview;
    QDialogButtonBox *m_buttons;
    QHash<QWidget *, olPageFrame *> m_frames;
    QPointer<olDocumentView> m_help;
    QTimer m_refresh;
    QRect m_place; ///< where it was last; not valid before

    /// What on the left or on the page had the focus last.
    QPointer<QWidget> m_workedAt;
};
