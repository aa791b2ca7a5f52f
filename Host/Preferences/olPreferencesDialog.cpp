#include "Preferences/olPreferencesDialog.h"

#include "Preferences/olPreferencesEntry.h"
#include "Preferences/olPreferencesRegistry.h"
#include "Preferences/olPreferencesSession.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr int nameRole = Qt::UserRole;

/// What the dialog would like to be, in characters of its font, so that it grows with the text.
QSize comfortableSize(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return {metrics.averageCharWidth() * 130, metrics.height() * 36};
}

} // namespace

olPreferencesDialog::olPreferencesDialog(olPreferencesSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_tree(new QTreeWidget),
      m_title(new QLabel),
      m_pages(new QStackedWidget),
      m_error(new QLabel),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Preferences"));
    m_tree->setHeaderHidden(true);
    m_tree->setAccessibleName(tr("Modules"));
    m_tree->setRootIsDecorated(true);

    QFont titleFont = m_title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    m_title->setFont(titleFont);
    m_error->setWordWrap(true);
    m_error->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_error->setVisible(false);

    auto *right = new QWidget;
    auto *rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addWidget(m_title);
    rightLayout->addWidget(m_pages, 1);

    auto *splitter = new QSplitter;
    splitter->addWidget(m_tree);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({fontMetrics().averageCharWidth() * 32, fontMetrics().averageCharWidth() * 98});

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_error);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &olPreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &olPreferencesDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &olPreferencesDialog::apply);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &olPreferencesDialog::showCurrent);
    connect(&olPreferencesRegistry::the(), &olPreferencesRegistry::pageAboutToGo, this, &olPreferencesDialog::giveBack);

    const QSize room = screen()->availableSize();
    resize(comfortableSize(*this).boundedTo(room));
    listModules();
}

olPreferencesDialog::~olPreferencesDialog()
{
    const QList<QWidget *> pages = m_frames.keys();
    for (QWidget *page : pages)
        giveBack(page);
}

void olPreferencesDialog::open(const QString &name)
{
    const auto items = m_tree->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    for (QTreeWidgetItem *item : items) {
        if (entryOf(item))
            m_tree->setCurrentItem(item);
    }
    show();
    raise();
    activateWindow();
}

void olPreferencesDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_error->setVisible(false);
    showCurrent();
}

void olPreferencesDialog::accept()
{
    if (!apply())
        return;
    m_shown.clear();
    QDialog::accept();
}

void olPreferencesDialog::reject()
{
    // The next opening fills the pages again, over whatever was edited.
    m_shown.clear();
    QDialog::reject();
}

bool olPreferencesDialog::apply()
{
    const QString error = m_session.confirm(m_shown);
    showError(error);
    return error.isEmpty();
}

void olPreferencesDialog::listModules()
{
    for (olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        if (entry->page())
            listModule(*entry);
    }
    m_tree->expandAll();
    if (m_tree->topLevelItemCount() > 0)
        m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

void olPreferencesDialog::listModule(olPreferencesEntry &entry)
{
    // A module named as its category is the category's own page.
    QTreeWidgetItem *item = nullptr;
    if (entry.category().isEmpty()) {
        item = new QTreeWidgetItem(m_tree);
    } else {
        QTreeWidgetItem *category = categoryItem(entry.category());
        item = entry.name() == entry.category() ? category : new QTreeWidgetItem(category);
    }
    item->setText(0, entry.name());
    item->setData(0, nameRole, entry.name());
}

QTreeWidgetItem *olPreferencesDialog::categoryItem(const QString &category)
{
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        if (m_tree->topLevelItem(row)->text(0) == category)
            return m_tree->topLevelItem(row);
    }
    auto *item = new QTreeWidgetItem(m_tree);
    item->setText(0, category);
    return item;
}

void olPreferencesDialog::showCurrent()
{
    QTreeWidgetItem *item = m_tree->currentItem();
    // A category without a page of its own shows its first module.
    while (item && !entryOf(item) && item->childCount() > 0)
        item = item->child(0);
    olPreferencesEntry *entry = entryOf(item);
    if (!entry || !entry->page() || !isVisible())
        return;
    fillOnce(*entry);
    m_title->setText(entry->name());
    m_pages->setCurrentWidget(frameOf(*entry));
}

void olPreferencesDialog::fillOnce(olPreferencesEntry &entry)
{
    if (std::find(m_shown.begin(), m_shown.end(), &entry) != m_shown.end())
        return;
    entry.updateGUI();
    m_shown.push_back(&entry);
}

QScrollArea *olPreferencesDialog::frameOf(olPreferencesEntry &entry)
{
    QScrollArea *&frame = m_frames[entry.page()];
    if (!frame) {
        frame = new QScrollArea(m_pages);
        frame->setFrameShape(QFrame::NoFrame);
        frame->setWidgetResizable(true);
        frame->setWidget(entry.page());
        m_pages->addWidget(frame);
    }
    return frame;
}

void olPreferencesDialog::giveBack(QWidget *page)
{
    QScrollArea *frame = m_frames.take(page);
    if (!frame)
        return;
    if (frame->takeWidget())
        page->setParent(nullptr);
    delete frame;
    m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(),
                                 [page](const olPreferencesEntry *entry) { return entry->page() == page; }),
                  m_shown.end());
}

void olPreferencesDialog::showError(const QString &error)
{
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
}

olPreferencesEntry *olPreferencesDialog::entryOf(const QTreeWidgetItem *item) const
{
    if (!item || !item->data(0, nameRole).isValid())
        return nullptr;
    return olPreferencesRegistry::the().find(item->data(0, nameRole).toString());
}
