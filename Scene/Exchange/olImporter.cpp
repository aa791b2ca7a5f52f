#include "Exchange/olImporter.h"

#include "Model/olDocumentCopy.h"
#include "Model/olScene.h"

#include "State/olHostState.h"
#include "Utilities/olLog.h"

#include <TDocStd_Document.hxx>

#include <QThread>

#include <atomic>

/// One file on its way.
class olImporter::Reading : public QThread
{
public:
    Reading(olImporter &importer, olImportJob job) : m_importer(importer), m_job(std::move(job)) {}

    void cancel() { m_isCancelled = true; }
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }
    [[nodiscard]] int percent() const { return m_percent; }
    [[nodiscard]] const olImportResult &result() const { return m_result; }
    [[nodiscard]] olImportReport report() const
    {
        const bool isFailed = !m_result.document.isOk() && !m_result.isCancelled;
        return {m_job.file, isFailed ? olFailure{m_result.document.error()} : olResult<>(), m_result.isCancelled,
                m_result.remarks};
    }

    /// Not read at all.
    void skip() { m_result.isCancelled = true; }

    void setPercent(int percent)
    {
        if (m_percent.exchange(percent) == percent)
            return;
        // When this arrives, the reading may be gone.
        QMetaObject::invokeMethod(
            &m_importer, [importer = &m_importer] { importer->showProgress(); }, Qt::QueuedConnection);
    }

private:
    void run() override;

    olImporter &m_importer;
    olImportJob m_job;
    olImportResult m_result;
    std::atomic_int m_percent{0};
    std::atomic_bool m_isCancelled{false};
};

namespace
{

/// Numbers that are not positive leave it to the host.
int tasksAtOnce()
{
    const int wanted = olHostState::the().maxParallelImportTasks;
    return wanted > 0 ? wanted : QThread::idealThreadCount();
}

} // namespace

void olImporter::Reading::run()
{
    m_result = olImport(m_job, {[this](int percent) { setPercent(percent); }, [this] { return isCancelled(); }});
    setPercent(100);
}

olImporter::olImporter(olScene &scene, QObject *parent) : QObject(parent), m_scene(scene) {}

olImporter::~olImporter()
{
    cancel();
    if (m_imports.empty())
        return;
    for (const std::unique_ptr<Reading> &reading : m_imports.front().readings)
        reading->wait();
}

int olImporter::start(const std::vector<olImportJob> &jobs, Into into)
{
    if (jobs.empty())
        return 0;
    Import import;
    import.number = ++m_last;
    import.into = into;
    for (const olImportJob &job : jobs)
        import.readings.push_back(std::make_unique<Reading>(*this, job));
    m_imports.push_back(std::move(import));
    startNext();
    return m_last;
}

void olImporter::cancel(int import)
{
    for (auto each = m_imports.begin(); each != m_imports.end(); ++each) {
        if (each->number != import)
            continue;
        const bool isRunning = m_isRunning && each == m_imports.begin();
        each->isCancelled = true;
        for (const std::unique_ptr<Reading> &reading : each->readings)
            reading->cancel();
        if (!isRunning)
            m_imports.erase(each);
        return;
    }
}

void olImporter::cancel()
{
    while (m_imports.size() > 1)
        cancel(m_imports.back().number);
    if (!m_imports.empty())
        cancel(m_imports.front().number);
}

void olImporter::startNext()
{
    if (m_isRunning || m_imports.empty())
        return;
    m_isRunning = true;
    fill();
}

void olImporter::fill()
{
    Import &import = m_imports.front();
    for (; import.next < import.readings.size() && m_active < tasksAtOnce(); ++import.next) {
        Reading &reading = *import.readings[import.next];
        if (import.isCancelled) {
            reading.skip();
            continue;
        }
        ++m_active;
        connect(&reading, &QThread::finished, this, [this, &reading] { finishOne(reading); });
        reading.start();
    }
    if (m_active == 0)
        finishAll();
}

void olImporter::finishOne(Reading &reading)
{
    // The thread says so just before it ends.
    reading.wait();
    --m_active;
    fill();
}

void olImporter::finishAll()
{
    const Import done = std::move(m_imports.front());
    m_imports.pop_front();
    m_isRunning = false;
    if (!done.isCancelled)
        take(done);
    logMissingGuards(done);
    QVector<olImportReport> reports;
    for (const std::unique_ptr<Reading> &reading : done.readings)
        reports << reading->report();
    // A file may have been through when the rest was given up.
    for (olImportReport &report : reports)
        report.isCancelled = report.isCancelled || done.isCancelled;
    emit finished(done.number, reports);
    startNext();
}

void olImporter::logMissingGuards(const Import &import)
{
    QStringList guards;
    for (const std::unique_ptr<Reading> &reading : import.readings)
        guards << reading->result().missingGuards;
    guards.removeDuplicates();
    for (const QString &guard : guards)
        olLog::info(guard);
}

void olImporter::take(const Import &import)
{
    std::vector<olScene::Document> documents;
    for (const std::unique_ptr<Reading> &reading : import.readings) {
        if (reading->result().document.isOk())
            documents.push_back(*reading->result().document);
    }
    if (documents.empty())
        return;
    const olDocumentCopy copy;
    for (std::size_t index = 1; index < documents.size(); ++index)
        copy.copyInto(documents[index], documents.front());
    if (import.into == Into::OpenScene)
        m_scene.addDocument(documents.front());
    else
        m_scene.setDocument(documents.front());
}

void olImporter::showProgress()
{
    if (!m_isRunning)
        return;
    const Import &import = m_imports.front();
    int sum = 0;
    for (const std::unique_ptr<Reading> &reading : import.readings)
        sum += reading->percent();
    emit progressed(import.number, sum / int(import.readings.size()));
}
