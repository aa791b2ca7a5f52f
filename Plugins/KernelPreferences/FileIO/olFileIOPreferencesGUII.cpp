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

const olSetting<Paths> searchPaths{"texture search paths", Paths(), atNextImport()};
const olSetting<bool> verifyGeometry{"Loader verify geometry only", true, atNextImport()};
const olSetting<int> compressionMode{"Loader compress texture mode", 1, atNextImport()};
const olSetting<int> compressionSize{"Loader compress texture size", 128, atNextImport()};
const olSetting<bool> optimizeGeometry{"Loader optimize geometry", false, atNextImport()};
const olSetting<bool> parallelLoading{"Loader parallel loading", false, atNextImport()};
const olSetting<QString> tmpPath{"FileIO tmp path", QString(), atNextImport()};
const olSetting<bool> showDialog{"FileIO show dialog", true, atNextImport()};
const olSetting<bool> closeDialog{"FileIO close dialog on successful import", true, atNextImport()};
const olSetting<bool> centerToOrigin{"FileIO dialog center in origin", false, atNextImport()};
const olSetting<bool> placeOnGround{"FileIO dialog put on ground", false, atNextImport()};
const olSetting<int> maxParallelTasks{"BCADOptions max parallel tasks", 4,
                                      between(-1, 32768).effective(olEffect::NextImport)};

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
               QCoreApplication::translate("olPreferences", "FileIO"))
{
    const auto &form = page().form();
    settings().addOptionalList(searchPaths, SearchPathRows{&page(), form.searchPaths});
    settings().add(verifyGeometry, form.verifyGeometry);
    settings().add(compressionMode, form.compressionMode);
    settings().add(compressionSize, byNumber(form.compressionSize));
    settings().add(optimizeGeometry, form.optimizeGeometry);
    settings().addWithoutControl(parallelLoading);
    settings().add(tmpPath, form.tmpPath);
    settings().addRetired("FileIO create uber materials");
    settings().add(showDialog, form.showDialog);
    settings().add(closeDialog, form.closeDialog);
    settings().add(centerToOrigin, form.centerToOrigin);
    settings().add(placeOnGround, form.placeOnGround);
    settings().add(maxParallelTasks, form.maxParallelTasks);

    handOverPage();
}

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
    settings().showOnPage({&searchPaths, &verifyGeometry, &optimizeGeometry, &compressionMode, &compressionSize,
                           &tmpPath, &showDialog, &closeDialog, &centerToOrigin, &placeOnGround, &maxParallelTasks});
}

// Stored plainly: no key of this module is ever reported unchanged.
void olFileIOPreferencesGUII::updateData()
{
    settings().storeFromPage({&searchPaths, &verifyGeometry, &optimizeGeometry, &compressionMode, &compressionSize,
                              &maxParallelTasks, &tmpPath, &showDialog, &closeDialog, &centerToOrigin, &placeOnGround});
}

/// Deliberately from the page and not from the record: before the page was first filled, the override is cleared. An
/// empty path is set, not unset, so that it also clears what the process was started with.
void olFileIOPreferencesGUII::applyTmpPath() const
{
    const QString path = page().form().tmpPath->text();
    if (!path.isEmpty() && !olFile::exists(path.toStdString(), false, false)) {
        olLog::error("FileIO preferences: tmp path doesn't exist!");
        return;
    }
    qputenv("ORLO_FILEIO_TMP_DIR", path.toUtf8());
}
