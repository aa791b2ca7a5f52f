#include "Exchange/olFileNames.h"
#include "Exchange/olReaderMain.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    olKeepFileNames();
    const QCoreApplication application(argc, argv);
    olReaderMain();
}
