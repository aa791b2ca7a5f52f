#include "Exchange/olImport.h"

#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olReaderProtocol.h"

#include <TDocStd_Document.hxx>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QVariant>

#include <chrono>
#include <csignal>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

using Clock = std::chrono::steady_clock;

// How soon a cancelled reading ends, in milliseconds.
constexpr int glance = 50;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olImport)
};

/// A number of an open file, which closes with it. Lies above those that the reading process gets.
class OpenFile
{
public:
    explicit OpenFile(int number = -1)
    {
        constexpr int aboveOthers = 10;
        if (number < 0)
            return;
        m_number = fcntl(number, F_DUPFD_CLOEXEC, aboveOthers);
        close(number);
    }
    ~OpenFile() { shut(); }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    void shut()
    {
        if (m_number >= 0)
            close(m_number);
        m_number = -1;
    }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number = -1;
};

QByteArray readerProgram()
{
    const QString self = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    return QFile::encodeName(QFileInfo(self).path() + QLatin1Char('/') + QLatin1String(olReaderProtocol::program));
}

/// One reading process, which does not outlive this.
class Reader
{
public:
    Reader(const olImportJob &job, const olImportWatch &watch)
        : m_job(job),
          m_watch(watch),
          m_input(memfd_create("job", MFD_CLOEXEC)),
          m_result(memfd_create("result", MFD_CLOEXEC))
    {
    }

    ~Reader() { end(); }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    /// Says why there is no result of it in half a sentence.
    olResult<> run(olImportResult &result)
    {
        const olResult<> started = start();
        if (!started.isOk())
            return started;
        const olResult<> followed = follow(result);
        if (!followed.isOk() || result.isCancelled)
            return followed;
        int status = 0;
        waitpid(m_process, &status, 0);
        m_process = 0;
        if (WIFSIGNALED(status))
            return olFailure{WTERMSIG(status) == SIGKILL
                                 ? Words::tr("the system ended its reader, probably for want of memory")
                                 : Words::tr("the file is damaged in a way that makes its reader crash")};
        if (WEXITSTATUS(status) != 0 || !takeResult(result))
            return olFailure{Words::tr("its reader failed")};
        return {};
    }

private:
    olResult<> start()
    {
        const QByteArray job = olReaderProtocol::packed(m_job);
        int ends[2];
        if (m_input.number() < 0 || m_result.number() < 0 || pipe2(ends, O_CLOEXEC) != 0 ||
            ::write(m_input.number(), job.constData(), std::size_t(job.size())) != job.size())
            return olFailure{Words::tr("its reader cannot be started (%1)").arg(qt_error_string(errno))};
        lseek(m_input.number(), 0, SEEK_SET);
        const OpenFile writing(ends[1]);
        m_progress.emplace(ends[0]);

        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, m_input.number(), olReaderProtocol::jobFile);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files, writing.number(), olReaderProtocol::progressFile);
        posix_spawn_file_actions_adddup2(&files, m_result.number(), olReaderProtocol::resultFile);
        QByteArray program = readerProgram();
        // It says what is wrong with a file in the language of this program.
        QByteArray translations =
            QFile::encodeName(QCoreApplication::instance()->property("olTranslationFiles").toStringList().join(u'\n'));
        char *arguments[] = {program.data(), translations.data(), nullptr};
        // In small pages of memory it would look up the corners of a large mesh much longer.
        char largePages[] = "GLIBC_TUNABLES=glibc.malloc.hugetlb=1";
        std::vector<char *> environment{largePages};
        for (char **each = environ; *each; ++each)
            environment.push_back(*each);
        environment.push_back(nullptr);
        const int error = posix_spawn(&m_process, program.constData(), &files, nullptr, arguments, environment.data());
        posix_spawn_file_actions_destroy(&files);
        if (error == 0)
            return {};
        m_process = 0;
        return olFailure{
            Words::tr("its reader %1 cannot be started (%2)").arg(QFile::decodeName(program), qt_error_string(error))};
    }

    /// Until the process closes its end, or nobody wants to wait any longer.
    olResult<> follow(olImportResult &result)
    {
        Clock::time_point heard = Clock::now();
        QByteArray lines;
        for (;;) {
            pollfd progress{m_progress->number(), POLLIN, 0};
            const bool isThere = poll(&progress, 1, glance) > 0;
            if (m_watch.isCancelled && m_watch.isCancelled()) {
                result.isCancelled = true;
                return {};
            }
            if (!isThere) {
                if (Clock::now() - heard > std::chrono::milliseconds(m_job.patience))
                    return olFailure{Words::tr("reading it made no progress for %1 seconds")
                                         .arg(QString::number(m_job.patience / 1000.0))};
                continue;
            }
            char bytes[4096];
            const ssize_t count = ::read(m_progress->number(), bytes, sizeof(bytes));
            if (count <= 0)
                return {};
            heard = Clock::now();
            lines.append(bytes, int(count));
            tell(lines);
        }
    }

    /// The last whole line counts.
    void tell(QByteArray &lines) const
    {
        const int end = lines.lastIndexOf('\n');
        if (end < 0)
            return;
        const int start = end == 0 ? 0 : lines.lastIndexOf('\n', end - 1) + 1;
        if (m_watch.progressed)
            m_watch.progressed(qBound(0, lines.mid(start, end - start).toInt(), 100));
        lines.remove(0, end + 1);
    }

    bool takeResult(olImportResult &result) const
    {
        struct stat info {
        };
        if (fstat(m_result.number(), &info) != 0 || info.st_size <= 0)
            return false;
        const auto size = std::size_t(info.st_size);
        void *bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, m_result.number(), 0);
        if (bytes == MAP_FAILED)
            return false;
        const bool isWhole = olReaderProtocol::read(static_cast<const unsigned char *>(bytes), size, result);
        munmap(bytes, size);
        return isWhole;
    }

    void end()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
        m_process = 0;
    }

    const olImportJob &m_job;
    const olImportWatch &m_watch;
    OpenFile m_input;
    OpenFile m_result;
    std::optional<OpenFile> m_progress;
    pid_t m_process = 0;
};

olResult<> attempt(olImportJob job, const olImportWatch &watch, olImportResult &result)
{
    std::optional<olFormatTools::Secluded> alone;
    if (!job.options.importReferencedFiles) {
        alone.emplace(job);
        if (!alone->isReady())
            return olFailure{Words::tr("the temporary directory cannot be written to")};
        job.loneFile = alone->file();
    }
    return Reader(job, watch).run(result);
}

} // namespace

olImportResult olImport(const olImportJob &job, const olImportWatch &watch)
{
    olImportResult result;
    if (!olModelFormat::ofFile(job.file)) {
        result.document =
            olFailure{QFileInfo(job.file).isDir() ? Words::tr("Cannot read %1: this is a folder.").arg(job.file)
                                                  : olModelFormat::noReader(job.file)};
        return result;
    }
    const olResult<> ran = attempt(job, watch, result);
    if (!result.isCancelled && !(ran.isOk() && result.document.isOk()))
        result.document = olFailure{
            Words::tr("Cannot read %1: %2.").arg(job.file, ran.isOk() ? result.document.error() : ran.error())};
    return result;
}
