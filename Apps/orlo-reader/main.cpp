#include "Exchange/olReaderMain.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    olReaderMain();
}
