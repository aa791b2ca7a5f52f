#include "FileIO/olFileIOPreferencesGUIW.h"

#include "Framework/olChooseDirectory.h"
#include "Kernel/olController.h"
#include "Utilities/olPlatform.h"
#include "ui_olFileIOPreferencesGUI.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <algorithm>
#include <functional>
#include <set>

olFileIOPreferencesGUIW::olFileIOPreferencesGUIW()
{
    m_form->searchPaths->setHorizontalHeaderLabels({QCoreApplication::translate("olPreferences", "Path")});
    setSearchPaths({});
    setUpBrowseButton();
    if (olController::isOrloEssentials())
        m_form->textureCompression->hide();

    connect(m_form->addPath, SIGNAL(clicked()), this, SLOT(clickedAdd()));
    connect(m_form->removePath, SIGNAL(clicked()), this, SLOT(clickedSub()));
    connect(m_form->browseTmpPath, SIGNAL(clicked()), this, SLOT(clickedGetTmpPath()));
}

olFileIOPreferencesGUIW::~olFileIOPreferencesGUIW() = default;

void olFileIOPreferencesGUIW::setSearchPaths(const std::vector<std::string> &paths)
{
    // Textures are searched in the order of the list, so it is shown as it is, whatever the user sorted by before.
    m_form->searchPaths->setSortingEnabled(false);
    m_form->searchPaths->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    m_form->searchPaths->setRowCount(0);
    for (const std::string &path : paths)
        appendSearchPath(QString::fromStdString(path));
    m_form->searchPaths->setSortingEnabled(true);
}

std::vector<std::string> olFileIOPreferencesGUIW::searchPaths() const
{
    std::vector<std::string> paths;
    paths.reserve(size_t(m_form->searchPaths->rowCount()));
    for (int row = 0; row < m_form->searchPaths->rowCount(); ++row)
        paths.push_back(m_form->searchPaths->item(row, 0)->text().toStdString());
    return paths;
}

void olFileIOPreferencesGUIW::clickedAdd()
{
    const QString directory = olChooseDirectory(this, tr("Select Texture Search Directory"), QString());
    if (directory.isEmpty())
        return;
    if (hasSearchPath(directory)) {
        QMessageBox::information(this, olPlatform::getAppVersionName(), tr("Path already inserted!"));
        return;
    }
    m_form->searchPaths->setSortingEnabled(false);
    appendSearchPath(directory);
    m_form->searchPaths->setSortingEnabled(true);
}

void olFileIOPreferencesGUIW::clickedSub()
{
    // From the bottom, so that the numbers of the rows still to go stay what they are.
    std::set<int, std::greater<>> rows;
    const auto selected = m_form->searchPaths->selectedItems();
    for (const QTableWidgetItem *item : selected)
        rows.insert(item->row());
    for (const int row : rows)
        m_form->searchPaths->removeRow(row);
}

void olFileIOPreferencesGUIW::clickedGetTmpPath()
{
    const QString directory = olChooseDirectory(this, tr("Select Temporary File Path"), QString());
    if (!directory.isEmpty())
        m_form->tmpPath->setText(directory);
}

void olFileIOPreferencesGUIW::setUpBrowseButton()
{
    const QSize size = QSize(olPlatform::getMediumIconSizeX(), olPlatform::getMediumIconSizeY()) + QSize(2, 2);
    m_form->browseTmpPath->setIcon(olPlatform::getIcon(QLatin1String("FileOpen")));
    m_form->browseTmpPath->setIconSize(size);
    m_form->browseTmpPath->setFixedSize(size);
}

void olFileIOPreferencesGUIW::appendSearchPath(const QString &path)
{
    const int row = m_form->searchPaths->rowCount();
    m_form->searchPaths->insertRow(row);
    auto item = std::make_unique<QTableWidgetItem>(path);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setToolTip(path); // the column may be too narrow for all of it
    m_form->searchPaths->setItem(row, 0, item.release());
}

bool olFileIOPreferencesGUIW::hasSearchPath(const QString &path) const
{
    const std::vector<std::string> paths = searchPaths();
    return std::find(paths.begin(), paths.end(), path.toStdString()) != paths.end();
}
