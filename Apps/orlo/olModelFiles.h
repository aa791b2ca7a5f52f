#pragma once

#include "olImportFineness.h"

#include "Exchange/olImporter.h"

#include <QHash>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <utility>

class QMenu;
class QWidget;
class olImportDialog;
class olScene;

/// Import and export from the window: menu entries, files dropped onto it, a dialog for each import, and what to say
/// when something cannot be read.
class olModelFiles : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive this.
    olModelFiles(QWidget &window, olScene &scene);

    void addTo(QMenu &menu);

    /// Imports the files together, after asking how where the host's state wants that.
    void open(const QStringList &files);

    /// Imports a file without asking.
    void openAtOnce(const QString &file);

    /// Lets who is asked about an import change its settings, for that import or for good. `keep` makes them so and
    /// returns why it could not; empty where it could.
    void offerSettings(olImportFineness::LockReason lockReason,
                       std::function<QString(const olImportFineness::Values &values)> keep)
    {
        m_lockReason = std::move(lockReason);
        m_keep = std::move(keep);
    }

    /// Files that were read into the scene as it is, in the order of their reading.
    [[nodiscard]] const QStringList &opened() const { return m_opened; }

    /// For a scene that starts anew.
    void forgetOpened() { m_opened.clear(); }

signals:
    /// At least one file was read well, and the scene is another one.
    void imported();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseImport();
    void chooseExport();
    [[nodiscard]] olImportDialog *addDialog(const std::vector<olImportJob> &jobs);
    void start(const std::vector<olImportJob> &jobs, olImportDialog *dialog);
    void finish(int import, const QVector<olImportReport> &reports);
    void tell(const QString &text);

    QWidget &m_window;
    olScene &m_scene;
    olImporter m_importer;
    QHash<int, QPointer<olImportDialog>> m_dialogs;
    QStringList m_opened;
    olImportFineness::LockReason m_lockReason;
    std::function<QString(const olImportFineness::Values &values)> m_keep;
};
