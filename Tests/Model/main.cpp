// Drives all modules with long random sequences of operations and holds them against what must be true after each.

#include "Model/ModelSession.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>
#include <iostream>

namespace
{

constexpr int linesOfASession = 4000;

/// Prints the script's last lines and where it is.
void report(const QString &script, unsigned seed, const std::string &what)
{
    QFile file(script);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QList<QByteArray> lines = isOpen ? file.readAll().trimmed().split('\n') : QList<QByteArray>();
    std::printf("FAILED with --seed %u: %s\nThe last of %d lines of %s (run it as its first line says):\n", seed,
                what.c_str(), lines.size() - 1, qPrintable(script));
    for (const QByteArray &line : lines.mid(qMax(0, lines.size() - 12)))
        std::printf("  %s\n", line.constData());
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({QStringLiteral("seed"), QStringLiteral("The first session's; ORLO_SEED is another way."),
                       QStringLiteral("number"), qEnvironmentVariable("ORLO_SEED", QStringLiteral("1"))});
    options.addOption({QStringLiteral("operations"), QStringLiteral("How many to carry out."), QStringLiteral("number"),
                       QStringLiteral("200000")});
    options.addOption({QStringLiteral("long"), QStringLiteral("Ten times as many.")});
    options.process(application);

    auto seed = options.value(QStringLiteral("seed")).toUInt();
    const int operations =
        options.value(QStringLiteral("operations")).toInt() * (options.isSet(QStringLiteral("long")) ? 10 : 1);
    const QString script =
        QDir::temp().filePath(QStringLiteral("orlo-model-%1.orlo").arg(application.applicationPid()));
    std::printf("%d operations, seeds from %u on; each session's script is %s\n", operations, seed, qPrintable(script));
    std::fflush(stdout);

    // The reader tells of every wrong type at length, and here there are thousands.
    stderr = std::fopen("/dev/null", "w");
    std::cerr.rdbuf(nullptr);
    for (int done = 0; done < operations; done += linesOfASession, ++seed) {
        try {
            ModelSession(seed, QStringLiteral(ORLO_PLUGIN_FILE), script).run(qMin(linesOfASession, operations - done));
        } catch (const std::exception &failure) {
            report(script, seed, failure.what());
            return 1;
        }
    }
    QFile::remove(script);
    return 0;
}
