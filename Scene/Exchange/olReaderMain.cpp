#include "Exchange/olReaderMain.h"

#include "Exchange/olReadModel.h"
#include "Exchange/olReaderProtocol.h"
#include "Exchange/olSandbox.h"

#include <Message_ProgressIndicator.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <exception>

#include <sys/prctl.h>
#include <unistd.h>

namespace
{

/// Says how far the reading is, often enough to be seen alive and no more often.
class Indicator : public Message_ProgressIndicator
{
private:
    Standard_Boolean UserBreak() override { return Standard_False; }
    void Show(const Message_ProgressScope &, const Standard_Boolean) override
    {
        const double position = GetPosition();
        const auto now = std::chrono::steady_clock::now();
        if (!(position > m_position) || now - m_said < std::chrono::milliseconds(20))
            return;
        m_position = position;
        m_said = now;
        dprintf(olReaderProtocol::progressFile, "%d\n", int(position * 100));
    }

    double m_position = -1;
    std::chrono::steady_clock::time_point m_said;
};

int run()
{
    // Files have a point where some languages have a comma.
    std::setlocale(LC_NUMERIC, "C");
    // Nobody waits for a result when the viewer is gone.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QStringList missingGuards = olSandbox::enter();
    QFile input;
    olImportJob job;
    if (!input.open(olReaderProtocol::jobFile, QIODevice::ReadOnly) ||
        !olReaderProtocol::unpack(input.readAll(), job)) {
        std::fprintf(stderr, "orlo-reader is started by orlo of the same build, and of no use alone.\n");
        return 2;
    }
    const Handle(Message_ProgressIndicator) indicator = new Indicator;
    olImportResult result = olReadModel(job, indicator->Start());
    result.missingGuards = missingGuards;
    dprintf(olReaderProtocol::progressFile, "100\n");
    return olReaderProtocol::write(result, olReaderProtocol::resultFile) ? 0 : 1;
}

} // namespace

void olReaderMain()
{
    int status = 1;
    try {
        status = run();
    } catch (const std::exception &) {
    }
    // All memory goes with the process; giving it back piece by piece would take time.
    _exit(status);
}
