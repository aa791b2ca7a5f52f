#include "Groups.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

int main(int argc, char *argv[])
{
    const std::map<std::string, std::shared_ptr<void> (*)()> groups{
        {"record", registerRecord}, {"pages", registerPages},
        {"growth", registerGrowth}, {"construction", registerConstruction},
        {"dialog", registerDialog}, {"search", registerSearch},
        {"save", registerSave}};
    const auto group = groups.find(argc > 1 ? argv[1] : "");
    if (group == groups.end()) {
        std::fprintf(stderr, "orlo-bench: the first argument is the group: construction, dialog, growth, pages, "
                             "record, save or search\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    // The platform without a screen complains of all that only a screen could do.
    qputenv("QT_LOGGING_RULES", "*.debug=false;*.warning=false");
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO benchmarks"));
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());

    const std::shared_ptr<void> held = group->second();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::ClearRegisteredBenchmarks();
    return 0;
}
