#pragma once

#include "Session/olPreferencesFile.h"
#include "State/olResult.h"
#include "olHostExport.h"

#include <QObject>
#include <QString>

class QMenu;
class QWidget;
class olPendingChanges;
class olPreferencesSession;
class olSettingWords;

/// Brings values of many settings in and out: files, profiles, and earlier saves of the store. Whatever comes in is
/// shown first, and pending once it is agreed to.
class ORLO_HOST_EXPORT olSettingsTransfer : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object; its windows belong to the parent.
    olSettingsTransfer(olPreferencesSession &session, olPendingChanges &pending, const olSettingWords &words,
                       QWidget &parent);

    void addTo(QMenu &menu);

    /// Shows what the file would change, and makes it pending if that is agreed to.
    void importFrom(const QString &file);

    /// Writes the values in force, not those still pending.
    void exportTo(const QString &file);

    /// Lists the saves of the store, and makes going back before one of them pending if that is agreed to.
    void showHistory();

signals:
    void done(const QString &note);
    void failed(const QString &error);

private:
    void chooseImport();
    void chooseExport();
    void preview(const QString &title, const QString &action, const olResult<olPreferencesFile::Contents> &contents);
    void goBack(int number);

    olPreferencesSession &m_session;
    olPendingChanges &m_pending;
    const olSettingWords &m_words;
    QWidget &m_parent;
};
