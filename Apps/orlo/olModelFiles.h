#pragma once

#include "Viewport/olImporter.h"

#include <QPointer>

class QMenu;
class QProgressDialog;
class QWidget;
class olScene;

/// Import and export from the window: menu entries, files dropped onto it, the progress with its cancel, and what to
/// say when something cannot be read.
class olModelFiles : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive this.
    olModelFiles(QWidget &window, olScene &scene);
    ~olModelFiles() override;

    void addTo(QMenu &menu);
    void open(const QString &file) { m_importer.start(file); }

signals:
    void imported(const QString &file);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseImport();
    void chooseExport();
    void showProgress(const QString &file);
    void finish(const QString &file, const QString &error, bool isCancelled, const QStringList &remarks);
    void tell(const QString &text);

    QWidget &m_window;
    olScene &m_scene;
    olImporter m_importer;
    QPointer<QProgressDialog> m_progress;
};
