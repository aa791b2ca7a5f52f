#pragma once

#include "olHostExport.h"

#include <QDialog>
#include <QString>
#include <QStringList>
#include <boost/any.hpp>

#include <vector>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// One row of a list of changes. The texts say the values; the values themselves show colours as such.
struct olListedChange {
    QString place; ///< where the setting stands, as "Camera: Field of View"
    QString key;   ///< empty for a page whose settings cannot be told apart
    QString before;
    QString after;
    boost::any beforeValue;
    boost::any afterValue;
};

/// Lists settings with their old and new values, and beneath them those that are passed over and why. Old and new are
/// always both in sight. It shows changes only, lets them be taken back, or asks which of them shall come.
class ORLO_HOST_EXPORT olChangesView : public QDialog
{
    Q_OBJECT

public:
    explicit olChangesView(const QString &title, QWidget *parent);

    /// One or two sentences above the lists.
    void setIntroduction(const QString &text);

    /// In place of those listed before; the current row stays where it can.
    void setChanges(const std::vector<olListedChange> &changes);
    void addSkipped(const QString &key, const QString &reason);

    /// Lets a person go to a change on its page, or take back one or all of them.
    void offerWork();

    /// Asks instead: every row so far gets a tick, a button of that text accepts the dialog, another one cancels it.
    void askFor(const QString &acceptText);

    /// Keys of the rows whose tick is set.
    [[nodiscard]] QStringList ticked() const;

    /// All rows as lines to be sent to somebody.
    [[nodiscard]] QString asText() const;

    /// Sizes the dialog for what was added; to be called before it is shown.
    void fit();

signals:
    /// A change was chosen to be looked at on its page. The view closes.
    void chosen(const QString &key);

    /// These are to be taken back; whoever does it lists the changes anew. An empty key stands for the row's whole
    /// page, which is named by its place.
    void takeBackAsked(const QStringList &keys, const QStringList &places);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QTreeWidget *addList(const QStringList &headers, const QString &name);
    QPushButton *addButton(const QString &text, const QString &name, void (olChangesView::*act)());
    void goThere();
    void takeBack();
    void takeAllBack();
    void copyAsText();
    void askToTakeBack(const QList<QTreeWidgetItem *> &items);
    void updateButtons();

    enum class Use { Look, Work, Choose };

    Use m_use = Use::Look;
    QLabel *m_introduction;
    QTreeWidget *m_changes;
    QLabel *m_skippedLabel;
    QTreeWidget *m_skipped;
    QDialogButtonBox *m_buttons;
    QPushButton *m_goThere;
    QPushButton *m_takeBack;
    QPushButton *m_takeAllBack;
};
