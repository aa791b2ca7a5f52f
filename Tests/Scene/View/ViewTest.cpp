#include "Scene/View/ViewTest.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

ViewTest::ViewTest()
{
    for (olPreferencesEntry *entry : modules()) {
        entry->setDefaults(true);
        entry->applyPreferences();
        entry->markClean();
    }
    scene.loadSample();
    view.setScene(&scene);
    view.resize(width, height);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        throw std::runtime_error("the view does not come up");
    settle();
    if (!view.error().isEmpty())
        throw std::runtime_error(view.error().toStdString());
}

void ViewTest::settle(int milliseconds) { QTest::qWait(milliseconds); }

void ViewTest::hoverAt(const QPoint &point)
{
    // The pointer moves only where it was not already.
    QTest::mouseMove(&view, point + QPoint(3, 0));
    settle();
    QTest::mouseMove(&view, point);
    settle();
}

void ViewTest::press(const QPoint &from, const QPoint &to, int restMilliseconds)
{
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
    if (restMilliseconds > 0)
        settle(restMilliseconds);
    QMouseEvent moved(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &moved);
}

void ViewTest::release(const QPoint &at) { QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, at); }

double ViewTest::distance(const QImage &left, const QImage &right)
{
    if (left.size() != right.size() || left.isNull())
        return 255.0;
    double sum = 0.0;
    for (int y = 0; y < left.height(); ++y) {
        const uchar *one = left.constScanLine(y);
        const uchar *other = right.constScanLine(y);
        for (int i = 0; i < left.width() * 4; ++i)
            sum += std::abs(one[i] - other[i]);
    }
    return sum / (left.width() * left.height() * 3.0);
}
