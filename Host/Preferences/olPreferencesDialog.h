#pragma once

#include "Utilities/olExport.h"

#include <QDialog>
#include <QHash>

#include <vector>

class QDialogButtonBox;
class QLabel;
class QScrollArea;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
class olPreferencesEntry;
class olPreferencesSession;

/// Shows the modules as entries under their categories, with their pages. Edits stay on the pages until OK or Apply;
/// Cancel drops them. Not modal: the view stays usable beside it.
class ORLO_SDK_EXPORT olPreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    /// The session must outlive the dialog. The pages stay the modules': they are lent, and given back when a module
    /// asks or the dialog goes.
    explicit olPreferencesDialog(olPreferencesSession &session, QWidget *parent = nullptr);
    ~olPreferencesDialog() override;

    /// Opens the dialog, or brings it to the front, on the module of that name; an empty or unknown name keeps the
    /// page that was shown last.
    void open(const QString &name);

    /// Fills the pages anew from the values as they are.
    void showEvent(QShowEvent *event) override;

public slots:
    void accept() override;
    void reject() override;

    /// Stores and applies every page shown since the dialog opened. False, with the reason on the dialog and the edits
    /// kept, when they cannot be stored.
    bool apply();

private:
    void listModules();
    void listModule(olPreferencesEntry &entry);
    QTreeWidgetItem *categoryItem(const QString &category);
    void showCurrent();
    void fillOnce(olPreferencesEntry &entry);
    QScrollArea *frameOf(olPreferencesEntry &entry);
    void giveBack(QWidget *page);
    void showError(const QString &error);
    [[nodiscard]] olPreferencesEntry *entryOf(const QTreeWidgetItem *item) const;

    olPreferencesSession &m_session;
    QTreeWidget *m_tree;
    QLabel *m_title;
    QStackedWidget *m_pages;
    QLabel *m_error;
    QDialogButtonBox *m_buttons;
    QHash<QWidget *, QScrollArea *> m_frames;
    std::vector<olPreferencesEntry *> m_shown;
};
