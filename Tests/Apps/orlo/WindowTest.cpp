#include "WindowTest.h"

#include "Support/PictureDifference.h"

#include "Model/olScene.h"
#include "State/olHostState.h"
#include "Utilities/olWithoutMnemonic.h"
#include "View/olViewport.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QTreeWidgetItemIterator>
#include <QUrl>

#include <stdexcept>

WindowTest::WindowTest()
{
    session.start();
    olHostState::the().animateNavCam = false;
    window.openSample();
    window.resize(1200, 800);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window) || !view.error().isEmpty())
        throw std::runtime_error("the window does not come up");
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        throw std::runtime_error("the window does not become active");
    QTest::qWait(60);
}

WindowTest::~WindowTest() { window.closePreferences(); }

QAction &WindowTest::action(const char *text)
{
    for (QAction *action : window.findChildren<QAction *>()) {
        if (olWithoutMnemonic(action->text()) == QLatin1String(text))
            return *action;
    }
    throw std::runtime_error(std::string("no action ") + text);
}

QTreeWidgetItem &WindowTest::node(const char *name)
{
    for (QTreeWidgetItemIterator item(&tree); *item; ++item) {
        if ((*item)->text(0) == QLatin1String(name))
            return **item;
    }
    throw std::runtime_error(std::string("no node ") + name);
}

bool WindowTest::isInSight(QTreeWidgetItem &item)
{
    const QRect place = tree.visualItemRect(&item);
    return !place.isEmpty() && tree.viewport()->rect().contains(place.center());
}

void WindowTest::tick(QWidget &box)
{
    QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
}

bool WindowTest::drop(const QStringList &files)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &file : files)
        urls << QUrl::fromLocalFile(file);
    if (urls.isEmpty())
        data.setText("no file");
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setAccepted(false);
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent dropped(QPointF(300, 300), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &dropped);
    return dropped.isAccepted();
}

bool WindowTest::isLike(const QImage &picture) { return pictureDifference(picture, view.picture()) == 0.0; }
