#include "olTour.h"

#include "olJournalPanel.h"
#include "olMainWindow.h"

#include "Dialog/olPreferencesDialog.h"
#include "View/olViewport.h"
#include "Widgets/QOLSlider.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QTextStream>

#include <cstdio>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olTour)
};

void complain(const QString &what) { std::fprintf(stderr, "orlo: %s\n", qPrintable(what)); }

constexpr double changedFieldOfView = 25.0;

/// Before they are looked at.
void letWindowsDraw()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 300)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
}

QOLSlider *sliderFor(const QWidget &window, const QString &key)
{
    const auto sliders = window.findChildren<QOLSlider *>();
    for (QOLSlider *slider : sliders) {
        if (slider->property("olSettingKeys").toStringList().contains(key))
            return slider;
    }
    return nullptr;
}

} // namespace

int olTour::run(const QString &folder)
{
    QTextStream out(stdout);
    m_folder = folder;
    if (!QDir().mkpath(folder)) {
        complain(Words::tr("the folder %1 cannot be created").arg(folder));
        return 1;
    }

    m_window.showIntegratorPanels();
    olPreferencesDialog &preferences = m_window.openPreferences();
    letWindowsDraw();
    const QString setting = QStringLiteral("Camera fov");
    QOLSlider *slider = preferences.openAt(setting) ? sliderFor(preferences, setting) : nullptr;
    if (!slider) {
        complain(Words::tr("the camera has no page in this edition; nothing to show"));
        return 1;
    }
    bool saved = viewPicture(QStringLiteral("view-before.png"));
    saved = picture(m_window, QStringLiteral("before.png")) && saved;
    slider->setValue(changedFieldOfView);
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences.png")) && saved;

    const int callsBefore = m_window.journal().calls().size();
    if (!preferences.apply()) {
        complain(Words::tr("the change could not be applied"));
        return 1;
    }
    letWindowsDraw();
    saved = viewPicture(QStringLiteral("view-after.png")) && saved;
    saved = picture(m_window, QStringLiteral("after.png")) && saved;
    saved = moreOfPreferences(preferences) && saved;
    const QStringList calls = m_window.journal().calls().mid(callsBefore);
    out << Words::tr("Applied: Field of View %1").arg(changedFieldOfView) << '\n';
    for (const QString &call : calls)
        out << "  " << call << '\n';
    return saved && !calls.isEmpty() ? 0 : 1;
}

/// What was found, and a page whose settings wait for an import.
bool olTour::moreOfPreferences(olPreferencesDialog &preferences) const
{
    auto *search = preferences.findChild<QLineEdit *>(QStringLiteral("search"));
    search->setText(QStringLiteral("clipping"));
    letWindowsDraw();
    const bool saved = picture(preferences, QStringLiteral("preferences-search.png"));
    search->clear();
    preferences.open(QStringLiteral("Step"));
    letWindowsDraw();
    return picture(preferences, QStringLiteral("preferences-import.png")) && saved;
}

bool olTour::viewPicture(const QString &name) const
{
    olViewport *viewport = m_window.viewport();
    if (!viewport) {
        complain(Words::tr("this display shows no 3D view; there is no picture of it"));
        return false;
    }
    return save(viewport->picture(), name);
}

bool olTour::picture(QWidget &widget, const QString &name) const { return save(widget.grab().toImage(), name); }

bool olTour::save(const QImage &image, const QString &name) const
{
    const QString file = QDir(m_folder).absoluteFilePath(name);
    if (!image.save(file)) {
        complain(Words::tr("the picture %1 cannot be written").arg(file));
        return false;
    }
    QTextStream(stdout) << Words::tr("Picture: %1").arg(file) << '\n';
    return true;
}
