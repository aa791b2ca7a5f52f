#include "Viewport/ViewTest.h"

#include <QTest>

ViewTest::ViewTest()
{
    for (olPreferencesEntry *entry : modules()) {
        entry->setDefaults(true);
        entry->applyPreferences();
        entry->settle();
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

void ViewTest::apply(const char *moduleName, const char *key, const boost::any &value)
{
    olPreferencesEntry &entry = module(moduleName);
    entry.setValue(key, value);
    entry.setChanged(key, true);
    entry.applyPreferences();
    entry.settle();
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
