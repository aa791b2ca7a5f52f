#pragma once

#include <QString>

class QImage;
class QWidget;
class olMainWindow;
class olPreferencesDialog;

/// Shows without a person at the screen that a change in the preferences reaches the view.
class olTour
{
public:
    explicit olTour(olMainWindow &window) : m_window(window) {}

    /// Opens the preferences, applies a change and leaves pictures in the folder. Says on standard output what it did;
    /// returns the exit status of the program.
    [[nodiscard]] int run(const QString &folder);

private:
    [[nodiscard]] bool pending(olPreferencesDialog &preferences) const;
    [[nodiscard]] bool lists(olPreferencesDialog &preferences) const;
    [[nodiscard]] bool imports(olPreferencesDialog &preferences) const;
    [[nodiscard]] bool surroundings(olPreferencesDialog &preferences) const;
    [[nodiscard]] bool dialog(const QString &name) const;
    [[nodiscard]] bool viewPicture(const QString &name) const;
    [[nodiscard]] bool save(const QImage &image, const QString &name) const;
    [[nodiscard]] bool picture(QWidget &widget, const QString &name) const;

    olMainWindow &m_window;
    QString m_folder;
};
