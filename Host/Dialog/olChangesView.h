#pragma once

#include "olHostExport.h"

#include <QDialog>
#include <QString>

class QDialogButtonBox;
class QLabel;
class QTreeWidget;

/// Lists settings with their old and new values, and beneath them those that are passed over and why.
class ORLO_HOST_EXPORT olChangesView : public QDialog
{
    Q_OBJECT

public:
    explicit olChangesView(const QString &title, QWidget *parent);

    /// One or two sentences above the lists.
    void setIntroduction(const QString &text);

    /// `place` is where the setting stands, as "Camera: Field of View"; the key is shown in the tooltip and handed on.
    void addChange(const QString &place, const QString &key, const QString &before, const QString &after);
    void addSkipped(const QString &key, const QString &reason);

    /// Asks instead of only showing: a button of that text accepts the dialog, another one cancels it.
    void askFor(const QString &acceptText);

    /// Sizes the columns and the dialog for what was added; to be called before it is shown.
    void fit();

signals:
    /// A change was chosen to be looked at on its page. The view closes.
    void chosen(const QString &key);

private:
    QTreeWidget *addList(const QStringList &headers, const QString &name);
    void choose();

    QLabel *m_introduction;
    QTreeWidget *m_changes;
    QLabel *m_skippedLabel;
    QTreeWidget *m_skipped;
    QDialogButtonBox *m_buttons;
};
