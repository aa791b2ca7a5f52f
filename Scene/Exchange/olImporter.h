#pragma once

#include "Exchange/olImport.h"

#include <QObject>
#include <QVector>

#include <deque>
#include <memory>
#include <vector>

class olScene;

/// What became of one file of an import.
struct olImportReport {
    QString file;
    /// Good, too, where it was cancelled.
    olResult<> outcome;
    bool isCancelled = false;
    QStringList remarks;
};

/// Reads models into a scene without making its caller wait: each file is read in a process of its own, and the scene
/// changes in the GUI thread when all files of an import are through. Imports wait in line for each other; the files of
/// one are read side by side, as many at a time as the host's state allows.
class olImporter : public QObject
{
    Q_OBJECT

public:
    /// The scene must outlive the importer.
    explicit olImporter(olScene &scene, QObject *parent = nullptr);

    /// Cancels, which ends all readers at once.
    ~olImporter() override;

    /// Whether what was open stays.
    enum class Into { NewScene, OpenScene };

    /// The files make one scene together, in their order. Returns the number by which the signals name this import; 0,
    /// and no signal, without any files.
    int start(const std::vector<olImportJob> &jobs, Into into = Into::NewScene);

    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Gives one import up, or all. Their readers end at once, whatever they are doing.
    void cancel(int import);
    void cancel();

signals:
    /// From 0 to 100.
    void progressed(int import, int percent);

    /// One report a file. The scene has changed already, if any file was read well; a cancelled import leaves it alone.
    void finished(int import, const QVector<olImportReport> &reports);

private:
    class Reading;

    /// Files asked for together.
    struct Import {
        int number = 0;
        std::vector<std::unique_ptr<Reading>> readings;
        std::size_t next = 0;
        bool isCancelled = false;
        Into into = Into::NewScene;
    };

    void startNext();
    void fill();
    void finishOne(Reading &reading);
    void finishAll();
    void showProgress();
    static void logMissingGuards(const Import &import);
    void take(const Import &import);

    olScene &m_scene;
    std::deque<Import> m_imports;
    bool m_isRunning = false;
    int m_last = 0;
    int m_active = 0;
};
