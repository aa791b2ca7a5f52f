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
class olRecentModels;
class olScene;
struct olImportChoice;

/// Import and export from the window: menu entries, files dropped onto it, a dialog for each import, and a word on what
/// came of it.
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
    void openAtOnce(const QString &file, const olImportChoice &choice);

    /// The files that make the scene; none for one that is new or built in.
    [[nodiscard]] const QStringList &openFiles() const { return m_openFiles; }

    /// The scene is made of something else now.
    void forgetOpenFiles();

    /// Lets who is asked about an import change its settings, for that import or for good. `keep` makes them so and
    /// returns why it could not; empty where it could.
    void offerSettings(olImportFineness::LockReason lockReason,
                       std::function<QString(const olImportFineness::Values &values)> keep)
    {
        m_lockReason = std::move(lockReason);
        m_keep = std::move(keep);
    }

signals:
    /// At least one file was read well, and the scene is another one.
    void imported();

    void openFilesChanged();

    /// Something went well, in one sentence.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseImport();
    void chooseExport();
    void openAgain(const QString &file);
    [[nodiscard]] olImportDialog *addDialog(const std::vector<olImportJob> &jobs);
    void start(std::vector<olImportJob> jobs, const olImportChoice &choice, olImportDialog *dialog);
    void finish(int import, const QVector<olImportReport> &reports);
    void takeOver(const QStringList &files, bool isAdded);
    void report(bool isFailed, const QString &headline, const QString &text);

    /// An import on its way.
    struct Running {
        QPointer<olImportDialog> dialog;
        bool isAdded = false;
    };

    QWidget &m_window;
    olScene &m_scene;
    olImporter m_importer;
    olRecentModels *m_recent;
    QHash<int, Running> m_running;
    QStringList m_openFiles;
    olImportFineness::LockReason m_lockReason;
    std::function<QString(const olImportFineness::Values &values)> m_keep;
};
