#include "Forms/Pictures.h"
#include "View/olViewport.h"

#include <QApplication>
#include <gtest/gtest.h>

// Without arguments a test. `--pictures FOLDER` leaves pictures there of what is looked at in every language.
int main(int argc, char *argv[])
{
    testing::InitGoogleTest(&argc, argv);
    olViewport::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORLO tests"));
    const QStringList arguments = QApplication::arguments();
    const int pictures = arguments.indexOf(QStringLiteral("--pictures"));
    if (pictures > 0)
        Pictures::folder() = arguments.value(pictures + 1);
    return RUN_ALL_TESTS();
}
