#include "olAbout.h"

#include <QApplication>
#include <QMessageBox>

#include <Standard_Version.hxx>

void olShowAbout(QWidget &parent)
{
    const auto text = [](const char *source) { return QApplication::translate("olAbout", source); };
    const QString libraries =
        text("It uses these libraries, all of them linked dynamically, so that they can be replaced:"
             "<ul><li>OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception</li>"
             "<li>Qt %2: LGPL 3</li>"
             "<li>SQLite: public domain</li>"
             "<li>GNU libmicrohttpd: LGPL 2.1 or later</li>"
             "<li>libspnav: BSD, 3 clauses</li>"
             "<li>Boost: Boost Software License 1.0</li></ul>"
             "Their notices are in <i>third-party.md</i>, beside the documents of this program.")
            .arg(QStringLiteral(OCC_VERSION_COMPLETE), QString::fromLatin1(qVersion()));
    QMessageBox box(QMessageBox::NoIcon, text("About ORLO"),
                    QStringLiteral("<h3>ORLO %1</h3><p>%2</p>").arg(QApplication::applicationVersion(), libraries),
                    QMessageBox::Close, &parent);
    box.setTextFormat(Qt::RichText);
    box.exec();
}
