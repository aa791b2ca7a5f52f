#include "Exchange/olFileNames.h"
#include "Exchange/olReaderMain.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <list>

int main(int argc, char *argv[])
{
    olKeepFileNames();
    const QCoreApplication application(argc, argv);
    // Its sentences are in the language of the program that started it, which names the files.
    std::list<QTranslator> translators;
    const QStringList files = QFile::decodeName(argc > 1 ? argv[1] : "").split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &file : files) {
        if (translators.emplace_back().load(file))
            QCoreApplication::installTranslator(&translators.back());
    }
    olReaderMain();
}
