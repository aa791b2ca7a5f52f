#include "View/olViewport.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char *argv[])
{
    testing::InitGoogleTest(&argc, argv);
    olViewport::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    return RUN_ALL_TESTS();
}
