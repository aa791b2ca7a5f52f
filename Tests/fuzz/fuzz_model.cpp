// A file of a model. What looks at it before it is read runs here; the reading itself, which libraries do, runs in a
// process of its own, as it does for people. A library that crashes there is what that process is for; our own code
// that does is a fault, and so is whatever the result does to the process that takes it.

#include "Exchange/olImport.h"
#include "Exchange/olImportJob.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olReadModel.h"
#include "Exchange/olReaderProtocol.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <sanitizer/common_interface_defs.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr unsigned patience = 5;

QByteArray contentOf(int file)
{
    QByteArray bytes(int(lseek(file, 0, SEEK_END)), '\0');
    return pread(file, bytes.data(), std::size_t(bytes.size()), 0) == bytes.size() ? bytes : QByteArray();
}

/// Whether the innermost function of a crash that is neither of the runtime nor inline of a library is ours.
bool isOurs(const QByteArray &report)
{
    for (const QByteArray &line : report.split('\n')) {
        const QByteArray frame = line.trimmed();
        if (!frame.startsWith('#'))
            continue;
        if (frame.contains("/Scene/"))
            return true;
        const bool isRuntime = frame.contains("libc.so") || frame.contains("libstdc++") || frame.contains("libQt5") ||
                               frame.contains("__interceptor") || frame.contains("libgcc");
        if (frame.contains(".so") && !isRuntime)
            return false;
    }
    return false;
}

[[noreturn]] void readAlone(const olImportJob &job, int report, int result)
{
    dup2(report, STDERR_FILENO);
    // The fuzzer would answer the alarm, and keep each input that a library crashes on as a finding.
    std::signal(SIGALRM, SIG_DFL);
    __sanitizer_set_death_callback(nullptr);
    alarm(patience);
    const olImportResult read = olReadModel(job, Message_ProgressRange());
    _exit(olReaderProtocol::write(read, result) ? 0 : 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    std::setlocale(LC_NUMERIC, "C");
    QFile file(folder.filePath(QStringLiteral("model." FUZZED_SUFFIX)));
    if (!file.open(QIODevice::WriteOnly) || file.write(reinterpret_cast<const char *>(data), qint64(size)) < 0)
        std::abort();
    file.close();
    QStringList remarks;
    if (!file.open(QIODevice::ReadOnly) || !olModelFormat::ofFile(file.fileName())->check(file, remarks).isOk())
        return 0;

    const olImportJob job = olImportJob::of(file.fileName());
    const int report = memfd_create("report", MFD_CLOEXEC);
    const int result = memfd_create("result", MFD_CLOEXEC);
    const pid_t reader = fork();
    if (reader == 0)
        readAlone(job, report, result);
    int status = 0;
    // The fuzzer's own clock interrupts the waiting; a reader that is left alone may go on for ever.
    while (waitpid(reader, &status, 0) < 0 && errno == EINTR)
        continue;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        const QByteArray bytes = contentOf(result);
        olImportResult taken;
        (void)olReaderProtocol::read(reinterpret_cast<const unsigned char *>(bytes.constData()),
                                     std::size_t(bytes.size()), taken);
    } else if (isOurs(contentOf(report))) {
        std::fputs(contentOf(report).constData(), stderr);
        std::abort();
    }
    close(report);
    close(result);
    return 0;
}
