#include "olDirectoryChooser.h"

#include <QFileDialog>

#include <utility>

namespace
{

olDirectoryChooser &currentChooser()
{
    static olDirectoryChooser chooser;
    return chooser;
}

} // namespace

void olSetDirectoryChooser(olDirectoryChooser chooser) { currentChooser() = std::move(chooser); }

// Takes the place of the toolkit's own function for the whole process: a symbol that the program exports is found
// before that of any library. Neither the start directory as the caller passed it nor an answer that does not exist
// could be had by watching the toolkit's dialog, which makes both absolute and takes only what is there.
QString QFileDialog::getExistingDirectory(QWidget *, const QString &caption, const QString &directory, Options)
{
    return currentChooser() ? currentChooser()(caption, directory) : QString();
}
