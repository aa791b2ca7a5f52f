#include "Viewport/olImporter.h"

#include "Viewport/olScene.h"

#include <Message_ProgressIndicator.hxx>
#include <TDocStd_Document.hxx>

#include <QThread>

#include <atomic>

namespace
{

/// Takes the library's progress from the reading thread to whoever listens, and the wish to stop back.
class Indicator : public Message_ProgressIndicator
{
public:
    Indicator(olImporter &importer, const std::atomic_bool &isCancelled)
        : m_importer(importer), m_isCancelled(isCancelled)
    {
    }

private:
    Standard_Boolean UserBreak() override { return m_isCancelled; }
    void Show(const Message_ProgressScope &, const Standard_Boolean) override
    {
        const int percent = int(GetPosition() * 100);
        if (m_shown.exchange(percent) != percent)
            emit m_importer.progressed(percent);
    }

    olImporter &m_importer;
    const std::atomic_bool &m_isCancelled;
    std::atomic_int m_shown{-1};
};

} // namespace

/// One file on its way.
class olImporter::Reading : public QThread
{
public:
    Reading(olImporter &importer, olImportJob job) : m_importer(importer), m_job(std::move(job)) {}

    void cancel() { m_isCancelled = true; }
    [[nodiscard]] const QString &file() const { return m_job.file; }
    [[nodiscard]] const olImportResult &result() const { return m_result; }

private:
    void run() override
    {
        const Handle(Message_ProgressIndicator) indicator = new Indicator(m_importer, m_isCancelled);
        m_result = olImport(m_job, indicator->Start());
    }

    olImporter &m_importer;
    olImportJob m_job;
    olImportResult m_result;
    std::atomic_bool m_isCancelled{false};
};

olImporter::olImporter(olScene &scene, QObject *parent) : QObject(parent), m_scene(scene) {}

olImporter::~olImporter()
{
    if (!m_reading)
        return;
    m_reading->cancel();
    m_reading->wait();
}

void olImporter::start(const QString &file)
{
    m_waiting << file;
    if (!m_reading)
        startNext();
}

bool olImporter::isRunning() const { return m_reading != nullptr; }

void olImporter::cancel()
{
    m_waiting.clear();
    if (m_reading)
        m_reading->cancel();
}

void olImporter::startNext()
{
    if (m_waiting.isEmpty())
        return;
    m_reading = std::make_unique<Reading>(*this, olImportJob::of(m_waiting.takeFirst()));
    connect(m_reading.get(), &QThread::finished, this, &olImporter::finish);
    emit started(m_reading->file());
    m_reading->start();
}

void olImporter::finish()
{
    // The thread says so just before it ends.
    m_reading->wait();
    const std::unique_ptr<Reading> done = std::move(m_reading);
    const olImportResult &result = done->result();
    if (result.isGood())
        m_scene.setDocument(result.document);
    emit finished(done->file(), result.error, result.isCancelled, result.remarks);
    // Whoever was told may have started another one.
    if (!m_reading)
        startNext();
}
