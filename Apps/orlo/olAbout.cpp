#include "olAbout.h"

#include "Dialog/olDocumentView.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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
    const QString what = text("A desktop application to view, render and review CAD models in 3D.");
    QMessageBox box(
        QMessageBox::NoIcon, text("About ORLO"),
        QStringLiteral("<h3>ORLO %1</h3><p>%2</p><p>%3</p>").arg(QApplication::applicationVersion(), what, libraries),
        QMessageBox::Close, &parent);
    box.setTextFormat(Qt::RichText);
    QPushButton *notices = box.addButton(text("&Notices"), QMessageBox::ActionRole);
    const QString file = olDocumentView::find(QStringLiteral("third-party.md"));
    notices->setEnabled(!file.isEmpty());
    box.exec();
    if (box.clickedButton() != notices)
        return;
    auto *view = new olDocumentView(&parent);
    view->setAttribute(Qt::WA_DeleteOnClose);
    if (!view->show(file))
        delete view;
}
