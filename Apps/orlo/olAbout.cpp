#include "olAbout.h"

#include "Dialog/olDocumentView.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <Standard_Version.hxx>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olAbout)
};

} // namespace

void olShowAbout(QWidget &parent)
{
    const QString libraries =
        Words::tr("It uses these libraries, all of them linked dynamically, so that they can be replaced:"
                  "<ul><li>OpenCASCADE %1: LGPL 2.1 with the Open CASCADE exception</li>"
                  "<li>Qt %2: LGPL 3</li>"
                  "<li>SQLite: public domain</li>"
                  "<li>GNU libmicrohttpd: LGPL 2.1 or later</li>"
                  "<li>libspnav: BSD, 3 clauses</li>"
                  "<li>Boost: Boost Software License 1.0</li>"
                  "<li>assimp: BSD, 3 clauses</li>"
                  "<li>minizip: zlib licence</li>"
                  "<li>Coin: BSD, 3 clauses</li>"
                  "<li>libseccomp: LGPL 2.1</li></ul>"
                  "Their notices are in <i>third-party.md</i>, beside the documents of this program.")
            .arg(QStringLiteral(OCC_VERSION_COMPLETE), QString::fromLatin1(qVersion()));
    const QString what = Words::tr("A desktop application to view, render and review CAD models in 3D.");
    QMessageBox box(QMessageBox::NoIcon, Words::tr("About ORLO"),
                    QStringLiteral("<h3>ORLO %1</h3><p>%2</p><p>%3</p>")
                        .arg(QCoreApplication::applicationVersion(), what, libraries),
                    QMessageBox::Close, &parent);
    box.setTextFormat(Qt::RichText);
    QPushButton *notices = box.addButton(Words::tr("&Notices"), QMessageBox::ActionRole);
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
