#include "FileIO/olFileIOPreferencesGUII.h"

#include "FileIO/olFileIOPreferencesGUIW.h"
#include "Framework/olApply.h"
#include "Kernel/olController.h"
#include "Kernel/olFileIO.h"
#include "Kernel/olTexSearch.h"
#include "Utilities/olFile.h"
#include "Utilities/olLog.h"
#include "ui_olFileIOPreferencesGUI.h"

#include <QCoreApplication>
#include <QSettings>
#include <QVariant>

namespace
{

using Paths = std::vector<std::string>;

const olSetting<Paths> searchPaths{"texture search paths", Paths()};
const olSetting<bool> verifyGeometry{"Loader verify geometry only", true};
const olSetting<int> compressionMode{"Loader compress texture mode", 1};
const olSetting<int> compressionSize{"Loader compress texture size", 128};
const olSetting<bool> optimizeGeometry{"Loader optimize geometry", false};
const olSetting<bool> parallelLoading{"Loader parallel loading", false};
const olSetting<QString> tmpPath{"FileIO tmp path", QString()};
const olSetting<bool> showDialog{"FileIO show dialog", true};
const olSetting<bool> closeDialog{"FileIO close dialog on successful import", true};
const olSetting<bool> centerToOrigin{"FileIO dialog center in origin", false};
const olSetting<bool> placeOnGround{"FileIO dialog put on ground", false};
const olSetting<int> maxParallelTasks{"BCADOptions max parallel tasks", 4};

/// The table of search paths as a control.
struct SearchPathRows {
    olFileIOPreferencesGUIW *page;
    QTableWidget *widget;
};
void showOn(const SearchPathRows &rows, const Paths &paths) { rows.page->setSearchPaths(paths); }
void takeFrom(const SearchPathRows &rows, Paths &paths) { paths = rows.page->searchPaths(); }

/// The toolkit waits for a lock before it writes, and this runs on the way to the window: what stands there is left.
void rememberCloseDialog(bool close)
{
    QSettings settings;
    const QLatin1String key("importDialog/closeOnSuccess");
    if (settings.value(key).toString() != QVariant(close).toString())
        settings.setValue(key, close);
}

} // namespace

olFileIOPreferencesGUII::olFileIOPreferencesGUII()
    : olModule(QCoreApplication::translate("olPreferences", "FileIO"),
               QCoreApplication::translate("olPreferences", "FileIO")),
      m_page(std::make_unique<olFileIOPreferencesGUIW>()),
      m_settings(*m_page)
{
    const auto &form = m_page->form();
    m_settings.addOptionalList(searchPaths, SearchPathRows{m_page.get(), form.searchPaths});
    m_settings.add(verifyGeometry, form.verifyGeometry);
    m_settings.add(compressionMode, form.compressionMode);
    m_settings.add(compressionSize, byNumber(form.compressionSize));
    m_settings.add(optimizeGeometry, form.optimizeGeometry);
    m_settings.addWithoutControl(parallelLoading);
    m_settings.add(tmpPath, form.tmpPath);
    m_settings.addRetired("FileIO create uber materials");
    m_settings.add(showDialog, form.showDialog);
    m_settings.add(closeDialog, form.closeDialog);
    m_settings.add(centerToOrigin, form.centerToOrigin);
    m_settings.add(placeOnGround, form.placeOnGround);
    m_settings.add(maxParallelTasks, form.maxParallelTasks);

    addPreferencesGUI(m_page.get());
}

olFileIOPreferencesGUII::~olFileIOPreferencesGUII()
{
    m_settings.removeKeys();
    subPreferencesGUI(m_page.get());
}

void olFileIOPreferencesGUII::setDefaults(olMessage &, bool flag) { m_settings.writeDefaults(flag); }

void olFileIOPreferencesGUII::applyPreferences()
{
    olTexSearch::set();
    applyIfRead(verifyGeometry, &olFileIO::enableVerifyGeometry);
    applyIfRead(optimizeGeometry, &olFileIO::enableOptimizeGeometry);
    // Deliberately fixed: no setting stands behind these two.
    olFileIO::enableOptimizeTransparencies(false);
    olFileIO::setShowFileIOProgress(true);
    applyTmpPath();
    applyIfRead(showDialog, &olController::setShowImportOptions);
    applyIfRead(closeDialog, &rememberCloseDialog);
    applyIfRead(centerToOrigin, &olController::setImportOptionsCenterInOrigin);
    applyIfRead(placeOnGround, &olController::setImportOptionsPutOnGround);
    applyIfRead(maxParallelTasks, &olFileIO::setMaxParallelImportTasks);
    // The texture compression and the parallel loading are read from the record by those who load.
}

void olFileIOPreferencesGUII::updateGUI()
{
    m_settings.showOnPage({&searchPaths, &verifyGeometry, &optimizeGeometry, &compressionMode, &compressionSize,
                           &tmpPath, &showDialog, &closeDialog, &centerToOrigin, &placeOnGround, &maxParallelTasks});
}

// Stored plainly: no key of this module is ever reported unchanged.
void olFileIOPreferencesGUII::updateData()
{
    m_settings.storeFromPage({&searchPaths, &verifyGeometry, &optimizeGeometry, &compressionMode, &compressionSize,
                              &maxParallelTasks, &tmpPath, &showDialog, &closeDialog, &centerToOrigin, &placeOnGround});
}

/// Deliberately from the page and not from the record: before the page was first filled, the override is cleared. An
/// empty path is set, not unset, so that it also clears what the process was started with.
void olFileIOPreferencesGUII::applyTmpPath() const
{
    const QString path = m_page->form().tmpPath->text();
    if (!path.isEmpty() && !olFile::exists(path.toStdString(), false, false)) {
        olLog::error("FileIO preferences: tmp path doesn't exist!");
        return;
    }
    qputenv("ORLO_FILEIO_TMP_DIR", path.toUtf8());
}
