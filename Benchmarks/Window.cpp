#include "Support/BenchHost.h"

#include "olImportChoice.h"
#include "olMainWindow.h"

#include "View/olViewport.h"

#include <QApplication>
#include <QFile>
#include <QMouseEvent>

namespace
{

/// Goes on until the window shows a new picture.
void awaitPicture(olViewport &view)
{
    bool isShown = false;
    const auto shown = QObject::connect(&view, &QOpenGLWidget::frameSwapped, [&isShown] { isShown = true; });
    view.update();
    while (!isShown)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(shown);
}

void mouse(olViewport &view, QEvent::Type type, const QPoint &place)
{
    QMouseEvent event(type, place, view.mapToGlobal(place), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

} // namespace

/// Opens a window with a model, orbits it for a number of pictures, and ends. What that costs is measured from outside.
int main(int argc, char *argv[])
{
    require(argc == 3, "a model and a number of pictures");
    olViewport::prepareApplication();
    QApplication application(argc, argv);
    BenchHost host;
    olMainWindow window(host.session());
    window.show();
    require(window.viewport() != nullptr, "a display for the view");
    olViewport &view = *window.viewport();
    // As large as the pictures of the others.
    window.resize(window.size() + QSize(1280, 720) - view.size());
    awaitPicture(view);
    window.openModel(QFile::decodeName(argv[1]), {});
    while (view.parts().isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    awaitPicture(view);

    int picture = QByteArray(argv[2]).toInt();
    if (picture == 0)
        return 0; // a click would look for what is below the mouse, which no first picture waits for

    QPoint place = view.rect().center();
    mouse(view, QEvent::MouseButtonPress, place);
    for (; picture > 0; --picture) {
        place += QPoint(6, 2);
        mouse(view, QEvent::MouseMove, place);
        awaitPicture(view);
    }
    mouse(view, QEvent::MouseButtonRelease, place);
    window.closePreferences();
    return 0;
}
