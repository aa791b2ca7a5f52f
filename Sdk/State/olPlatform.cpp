#include "Utilities/olPlatform.h"

#include "State/olHostState.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

#include <array>

namespace
{

constexpr qreal plainDotsPerInch = 96.0;
constexpr float mediumIconSize = 24.0f;

using LogicalDotsPerInch = qreal (QScreen::*)() const;

float scale(LogicalDotsPerInch dotsPerInch)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? float((screen->*dotsPerInch)() / plainDotsPerInch) : 1.0f;
}

struct Icon {
    const char *name;
    const char *inTheme;
    QStyle::StandardPixmap inStyle;
};

Icon iconNamed(const QString &name)
{
    static const std::array<Icon, 4> icons{{
        {"FileOpen", "document-open", QStyle::SP_DirOpenIcon},
        {"FileSave", "document-save", QStyle::SP_DialogSaveButton},
        {"Help", "help-contents", QStyle::SP_DialogHelpButton},
        {"Reset", "edit-undo", QStyle::SP_DialogResetButton},
    }};
    for (const Icon &icon : icons) {
        if (name == QLatin1String(icon.name))
            return icon;
    }
    return {"", "text-x-generic", QStyle::SP_FileIcon};
}

} // namespace

QString olPlatform::getDataDir() { return olHostState::the().dataDir; }

QString olPlatform::getAppName() { return olHostState::the().applicationName; }

QString olPlatform::getAppVersionName() { return olHostState::the().appVersionName; }

float olPlatform::getDpiScaleX() { return scale(&QScreen::logicalDotsPerInchX); }

float olPlatform::getDpiScaleY() { return scale(&QScreen::logicalDotsPerInchY); }

int olPlatform::getMediumIconSizeX() { return qRound(mediumIconSize * getDpiScaleX()); }

int olPlatform::getMediumIconSizeY() { return qRound(mediumIconSize * getDpiScaleY()); }

QIcon olPlatform::getIcon(const QString &name)
{
    const Icon icon = iconNamed(name);
    const QIcon themed = QIcon::fromTheme(QLatin1String(icon.inTheme));
    return themed.isNull() ? QApplication::style()->standardIcon(icon.inStyle) : themed;
}
