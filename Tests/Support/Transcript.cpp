#include "Support/Transcript.h"

#include "Support/PluginTest.h"

#include <QFile>
#include <QTemporaryFile>
#include <gtest/gtest.h>

void expectTranscript(const char *name, const QByteArray &printed)
{
    QFile expected(sourceOfTest(QStringLiteral("Tests/%1.expected").arg(QLatin1String(name))));
    ASSERT_TRUE(expected.open(QIODevice::ReadOnly)) << expected.fileName().toStdString();
    if (expected.readAll() == printed)
        return;
    QTemporaryFile kept;
    kept.setAutoRemove(false);
    ASSERT_TRUE(kept.open() && kept.write(printed) == printed.size());
    FAIL() << "diff " << expected.fileName().toStdString() << " with " << kept.fileName().toStdString();
}
