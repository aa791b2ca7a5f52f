#include "Support/PluginTest.h"
#include "olMainWindow.h"

#include "Dialog/olPreferencesDialog.h"
#include "Session/olPreferencesSession.h"
#include "View/olViewport.h"

#include <QLabel>
#include <QTemporaryDir>

namespace
{

/// On a display that the view cannot use; skipped on others.
using WithoutView = PluginTest;

TEST_F(WithoutView, TheWindowSaysSoAndThePreferencesWork)
{
    if (olViewport::isSupported())
        GTEST_SKIP();
    const QTemporaryDir folder;
    olPreferencesSession session(folder.filePath("preferences.db"), {});
    session.start();
    olMainWindow window(session);
    window.show();
    EXPECT_EQ(window.viewport(), nullptr);
    const auto *reason = qobject_cast<QLabel *>(window.centralWidget());
    ASSERT_NE(reason, nullptr);
    EXPECT_TRUE(reason->text().contains("XWayland"));

    olPreferencesDialog &dialog = window.openPreferences("Camera");
    EXPECT_TRUE(module("Camera").page()->isVisible());
    dialog.accept();
    EXPECT_FALSE(dialog.isVisible());
    window.closePreferences();
}

} // namespace
