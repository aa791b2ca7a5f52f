#pragma once

#include "Viewport/olImport.h"

#include <QObject>

#include <memory>

class olScene;

/// Reads models into a scene without making its caller wait: the reading runs in a thread of its own, and the scene
/// changes in the GUI thread when a file was read well. One file at a time; further ones wait in line.
class olImporter : public QObject
{
    Q_OBJECT

public:
    /// The scene must outlive the importer.
    explicit olImporter(olScene &scene, QObject *parent = nullptr);

    /// Cancels, and waits for the reader to notice.
    ~olImporter() override;

    void start(const QString &file);
    [[nodiscard]] bool isRunning() const;

    /// Gives the running file and those in line up. The library notices between two parts of its work.
    void cancel();

signals:
    void started(const QString &file);

    /// From 0 to 100.
    void progressed(int percent);

    /// After a good import the scene has changed already. An empty error with `isCancelled` false is success.
    void finished(const QString &file, const QString &error, bool isCancelled, const QStringList &remarks);

private:
    class Reading;

    void startNext();
    void finish();

    olScene &m_scene;
    QStringList m_waiting;
    std::unique_ptr<Reading> m_reading;
};
