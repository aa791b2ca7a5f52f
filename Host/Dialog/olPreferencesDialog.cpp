#include "Dialog/olPreferencesDialog.h"

#include "Dialog/olChangesView.h"
#include "Dialog/olConsentBox.h"
#include "Dialog/olDialogMemory.h"
#include "Dialog/olDocumentView.h"
#include "Dialog/olFoundRows.h"
#include "Dialog/olFoundSettings.h"
#include "Dialog/olMessageLine.h"
#include "Dialog/olModuleTree.h"
#include "Dialog/olOutsideLine.h"
#include "Dialog/olPageFrame.h"
#include "Dialog/olSettingMarks.h"
#include "Dialog/olSettingMenu.h"
#include "Dialog/olSettingTips.h"
#include "Dialog/olSettingWords.h"
#include "Dialog/olSettingsTransfer.h"
#include "Dialog/olWindowPlace.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olSettingsSearch.h"
#include "Editing/olValueText.h"
#include "Session/olRecordedSettings.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

namespace
{

/// What the dialog would like to be, in characters of its font, so that it grows with the text.
QSize comfortableSize(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return {olWindowPlace::letterWidth(metrics) * 130, metrics.height() * 36};
}

/// Side by side; every name of the tree has its room.
QList<int> treeAndPage(const olModuleTree &tree)
{
    const int character = olWindowPlace::letterWidth(tree.fontMetrics());
    const int names = std::max(character * 33, tree.sizeHint().width());
    return {names, character * 130 - names};
}

QString changesText(std::size_t count)
{
    if (count == 0)
        return olPreferencesDialog::tr("No Changes");
    return count == 1 ? olPreferencesDialog::tr("1 Chan&ge...") : olPreferencesDialog::tr("%1 Chan&ges...").arg(count);
}

} // namespace

olPreferencesDialog::olPreferencesDialog(olPreferencesSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_pending(std::make_unique<olPendingChanges>(session)),
      m_search(std::make_unique<olSettingsSearch>()),
      m_words(std::make_unique<olSettingWords>(session, *m_pending, *m_search)),
      m_found(std::make_unique<olFoundRows>(*m_search, *m_pending, *m_words)),
      m_transfer(std::make_unique<olSettingsTransfer>(session, *m_pending, *m_words, *this)),
      m_menu(std::make_unique<olSettingMenu>(session, *m_pending)),
      m_tips(std::make_unique<olSettingTips>(session)),
      m_searchField(new QLineEdit),
      m_changedOnly(new QCheckBox(tr("Changed only"))),
      m_more(new QPushButton(tr("More"))),
      m_tree(new olModuleTree),
      m_splitter(new QSplitter),
      m_title(new QLabel),
      m_locked(new QPushButton),
      m_pageNote(new QLabel),
      m_restorePage(new QPushButton(tr("Restore &Page"))),
      m_pages(new QStackedWidget),
      m_nothing(new QLabel),
      m_foundList(new olFoundSettings),
      m_message(new olMessageLine),
      m_outside(new olOutsideLine(
          session, *m_pending, [this](const std::string &key) { return m_words->place(key); },
          [](const std::string &key, const boost::any &value) { return olShortValueText(key, value); })),
      m_changes(new QPushButton),
      m_preview(new QCheckBox(tr("Preview"))),
      m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel))
{
    setWindowTitle(tr("Preferences"));
    m_splitter->addWidget(buildLeft());
    m_splitter->addWidget(buildRight());
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    // The gap is the splitter's: a margin of one side would stay on it where reading goes from right to left.
    m_splitter->setHandleWidth(m_splitter->handleWidth() + fontMetrics().averageCharWidth());

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_outside);
    layout->addWidget(m_message);
    layout->addWidget(buildBottom());

    m_refresh.setSingleShot(true);
    connectParts();
    listModules();
    recall();
    refresh();
}

olPreferencesDialog::~olPreferencesDialog()
{
    remember();
    m_preview->setChecked(false);
    m_tree->disconnect(this);
    const QList<QWidget *> pages = m_frames.keys();
    for (QWidget *page : pages)
        giveBack(page);
}

QWidget *olPreferencesDialog::buildLeft()
{
    m_searchField->setObjectName(QStringLiteral("search"));
    m_searchField->setPlaceholderText(tr("Search"));
    m_searchField->setAccessibleName(tr("Search all settings"));
    m_searchField->setToolTip(tr("Finds settings by label, group, tooltip, choice and key (Ctrl+F)."));
    m_searchField->setClearButtonEnabled(true);
    m_changedOnly->setObjectName(QStringLiteral("changedOnly"));
    m_changedOnly->setToolTip(tr("Lists the settings that differ from their defaults."));

    auto *menu = new QMenu(m_more);
    m_transfer->addTo(*menu);
    menu->addSeparator();
    menu->addAction(tr("&Restore All Defaults"), this, &olPreferencesDialog::restoreAll);
    m_more->setObjectName(QStringLiteral("more"));
    m_more->setMenu(menu);
    m_more->setAutoDefault(false);

    auto *left = new QWidget;
    auto *layout = new QVBoxLayout(left);
    // From right to left the splitter puts its last part one pixel over the edge.
    layout->setContentsMargins(1, 0, 1, 0);
    auto *options = new QHBoxLayout;
    options->addWidget(m_changedOnly, 1);
    options->addWidget(m_more);
    layout->addWidget(m_searchField);
    layout->addLayout(options);
    layout->addWidget(m_tree, 1);
    return left;
}

QWidget *olPreferencesDialog::buildRight()
{
    QFont titleFont = m_title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    m_title->setFont(titleFont);
    m_title->setMinimumWidth(fontMetrics().averageCharWidth()); // the dialog may be narrower than it likes to be
    m_locked->setObjectName(QStringLiteral("locked"));
    m_locked->setAutoDefault(false);
    m_locked->setVisible(false);
    m_locked->setMenu(new QMenu(m_locked));
    m_restorePage->setObjectName(QStringLiteral("restorePage"));
    m_restorePage->setAutoDefault(false);
    m_restorePage->setToolTip(tr("Shows the defaults of this page. Nothing changes before OK or Apply."));
    m_pageNote->setObjectName(QStringLiteral("pageNote"));
    m_pageNote->setWordWrap(true);
    m_pageNote->setVisible(false);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_pages->addWidget(m_nothing);
    m_pages->addWidget(m_foundList);

    auto *right = new QWidget;
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *header = new QHBoxLayout;
    // No wider than its text, which would else stand at its own side where reading goes the other way.
    header->addWidget(m_title);
    header->addStretch(1);
    header->addWidget(m_restorePage);
    m_title->setMinimumHeight(m_restorePage->sizeHint().height()); // stays where it is without the button, too
    layout->addLayout(header);
    layout->addWidget(m_locked, 0, Qt::AlignLeft);
    layout->addWidget(m_pageNote);
    layout->addWidget(m_pages, 1);
    return right;
}

QWidget *olPreferencesDialog::buildBottom()
{
    m_message->setObjectName(QStringLiteral("message"));
    m_changes->setObjectName(QStringLiteral("changes"));
    m_changes->setAutoDefault(false);
    m_changes->setToolTip(tr("Lists what OK and Apply will change."));
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setToolTip(tr("Shows changes of the view as they are made. Nothing is stored before OK or Apply, and "
                             "Cancel shows the view as it was."));
    m_preview->setVisible(false);
    // A click on it or on Apply leaves the focus where one works.
    m_preview->setFocusPolicy(Qt::TabFocus);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("&OK"));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(tr("&Cancel"));
    m_buttons->button(QDialogButtonBox::Apply)->setText(tr("&Apply"));
    m_buttons->button(QDialogButtonBox::Apply)->setFocusPolicy(Qt::TabFocus);
    auto *bottom = new QWidget;
    auto *layout = new QHBoxLayout(bottom);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_changes);
    layout->addWidget(m_preview);
    layout->addStretch(1);
    layout->addWidget(m_buttons);
    return bottom;
}

void olPreferencesDialog::connectParts()
{
    connect(m_searchField, &QLineEdit::textChanged, this, &olPreferencesDialog::filter);
    connect(m_changedOnly, &QCheckBox::toggled, this, &olPreferencesDialog::filter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &olPreferencesDialog::showCurrent);
    // The current one, too, is asked for again from the list of what was found.
    connect(m_tree, &QTreeWidget::itemClicked, this, &olPreferencesDialog::showCurrent);
    connect(m_tree, &QTreeWidget::itemActivated, this, &olPreferencesDialog::showCurrent);
    connect(m_foundList, &olFoundSettings::chosen, this, &olPreferencesDialog::goToFound);
    connect(m_foundList, &olFoundSettings::menuAsked, this, &olPreferencesDialog::openMenuOfFound);
    connect(m_restorePage, &QPushButton::clicked, this, &olPreferencesDialog::restorePage);
    connect(m_changes, &QPushButton::clicked, this, &olPreferencesDialog::showChanges);
    connect(m_preview, &QCheckBox::toggled, m_pending.get(), &olPendingChanges::preview);
    connect(m_message, &olMessageLine::actionAsked, this, &olPreferencesDialog::restartAsked);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &olPreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &olPreferencesDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &olPreferencesDialog::apply);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_searchField->setFocus(Qt::ShortcutFocusReason);
        m_searchField->selectAll();
    });
    connect(m_menu.get(), &olSettingMenu::lockAsked, this, [this](const olFoundControl &control, const QString &key) {
        m_message->showNote(m_words->lock(control, key.toStdString()));
    });

    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && m_splitter->isAncestorOf(now))
            m_workedAt = now;
    });

    connect(m_transfer.get(), &olSettingsTransfer::done, m_message,
            [this](const QString &text) { m_message->showNote(text); });
    connect(m_transfer.get(), &olSettingsTransfer::failed, m_message, &olMessageLine::showError);
    m_pending->askWith([this](const olSettingWarning &question) { return isAgreed(question); });

    // A filling changes many controls at once, and one look at the end tells it all.
    connect(m_pending.get(), &olPendingChanges::edited, &m_refresh, QOverload<>::of(&QTimer::start));
    connect(&m_refresh, &QTimer::timeout, this, &olPreferencesDialog::refresh);

    const auto *news = &olPreferencesRegistry::the().news();
    connect(news, &olRegistryNews::pageAboutToGo, this, &olPreferencesDialog::giveBack);
    // Queued, as a module is not whole yet when it registers, nor any more when it leaves.
    connect(news, &olRegistryNews::changed, this, &olPreferencesDialog::listModules, Qt::QueuedConnection);
}

void olPreferencesDialog::recall()
{
    const olDialogMemory memory = olDialogMemory::recall();
    m_place = memory.place;
    if (memory.splitter.isEmpty() || !m_splitter->restoreState(memory.splitter))
        m_splitter->setSizes(treeAndPage(*m_tree));
    m_splitter->setOrientation(Qt::Horizontal);
    m_splitter->setChildrenCollapsible(false);
    m_tree->setOpenCategories(memory.openCategories);
    m_tree->choose(memory.page);
}

void olPreferencesDialog::remember() const
{
    const olPreferencesEntry *entry = m_tree->chosen();
    olDialogMemory{m_place, m_splitter->saveState(), entry ? entry->name() : QString(), m_tree->openCategories()}
        .keep();
}

void olPreferencesDialog::open(const QString &name)
{
    if (!name.isEmpty() && !m_tree->chosen())
        m_searchField->clear();
    m_tree->choose(name);
    if (!isVisible()) {
        if (isWindow())
            place();
        m_searchField->setFocus();
    }
    show();
    raise();
    activateWindow();
}

/// Where it was, else beside the window that it belongs to, so that what changes there can be seen.
void olPreferencesDialog::place()
{
    const QWidget *neighbour = parentWidget() ? parentWidget()->window() : nullptr;
    const QScreen *known = m_place.isValid() ? QGuiApplication::screenAt(m_place.center()) : nullptr;
    const QRect room = (known ? known : neighbour ? neighbour->screen() : screen())->availableGeometry();
    if (known) {
        setGeometry(olWindowPlace::onScreen(m_place, room));
        return;
    }
    const QSize size = m_place.isValid() ? m_place.size() : comfortableSize(*this);
    const QRect alone(room.center() - QPoint(size.width(), size.height()) / 2, size);
    setGeometry(neighbour ? olWindowPlace::beside(neighbour->frameGeometry(), size, room)
                          : olWindowPlace::onScreen(alone, room));
}

void olPreferencesDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    m_message->clear();
    m_outside->clear();
    // Texts and choices may have changed since the last time.
    m_search->invalidate();
    if (filter())
        showCurrent();
    m_searchField->setFocus();
}

void olPreferencesDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (event->spontaneous())
        return;
    // Within a panel it has no place of its own.
    if (isWindow())
        m_place = geometry();
    remember();
}

int olPreferencesDialog::panelWidth() const
{
    const int usual = olWindowPlace::letterWidth(fontMetrics()) * 70;
    const auto *frame = qobject_cast<const olPageFrame *>(m_pages->currentWidget());
    const QMargins around = layout()->contentsMargins();
    return std::max(usual, (frame ? frame->pageWidth() : 0) + around.left() + around.right());
}

/// Where it is narrow, beside a model say, the modules stand above their pages; before that they give up what they need
/// not have.
void olPreferencesDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    constexpr int page = 68; // characters of the widest one
    constexpr int both = 98;
    const int character = olWindowPlace::letterWidth(fontMetrics());
    const auto wanted = width() < character * both ? Qt::Vertical : Qt::Horizontal;
    if (m_splitter->orientation() != wanted) {
        m_splitter->setOrientation(wanted);
        const int third = m_splitter->height() / 3;
        m_splitter->setSizes(wanted == Qt::Vertical ? QList<int>{third, m_splitter->height() - third}
                                                    : treeAndPage(*m_tree));
    }
    const QList<int> sizes = m_splitter->sizes();
    const int missing = character * page - sizes.last();
    const int names = std::max(m_tree->sizeHint().width(), sizes.first() - missing);
    if (wanted == Qt::Horizontal && missing > 0 && names < sizes.first())
        m_splitter->setSizes({names, sizes.first() + sizes.last() - names});
}

void olPreferencesDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool asksForMenu =
        event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (event->matches(QKeySequence::HelpContents))
        showHelp();
    else if (event->key() == Qt::Key_Escape && !m_searchField->text().isEmpty())
        m_searchField->clear();
    else if (isEnter && m_searchField->hasFocus())
        goToFound(m_foundList->currentRow());
    else if (isEnter && !qobject_cast<QPushButton *>(focusWidget()))
        event->accept(); // ends the typing in a field; nothing is applied and nothing closes by it
    else if (event->key() == Qt::Key_Down && m_searchField->hasFocus())
        (m_foundList->isVisible() ? static_cast<QWidget *>(m_foundList) : m_tree)->setFocus(Qt::TabFocusReason);
    else if (!asksForMenu || !m_menu->openFor(focusWidget()))
        QDialog::keyPressEvent(event);
}

/// The line of the setting that one works at, else all of the page, in the documents.
void olPreferencesDialog::showHelp()
{
    const int row = m_foundList->hasFocus() ? m_foundList->currentRow() : -1;
    const auto [foundEntry, control] = m_found->row(row);
    const olPreferencesEntry *entry = foundEntry ? foundEntry : m_tree->chosen();
    if (!entry)
        return;
    QString key = control.keys.isEmpty() ? m_menu->keyOf(focusWidget()) : control.keys.first();
    if (key.isEmpty() && !entry->defaults().empty())
        key = QString::fromStdString(entry->defaults().front().key);
    if (!m_help)
        m_help = new olDocumentView(this);
    if (!m_help->show(olDocumentView::find(QStringLiteral("settings.md")), key))
        m_message->showNote(tr("The documents about the settings are not installed."));
}

void olPreferencesDialog::accept()
{
    // What the host has to say about the saving is read first; a second OK finds nothing more to do.
    if (!store() || tellNotices())
        return;
    m_preview->setChecked(false);
    m_pending->drop();
    QDialog::accept();
}

void olPreferencesDialog::reject()
{
    if (isVisible() && !mayLeave())
        return;
    m_preview->setChecked(false);
    // The next opening fills the pages again, over whatever was edited.
    m_pending->drop();
    QDialog::reject();
}

bool olPreferencesDialog::mayLeave()
{
    const std::vector<olPendingChange> changes = m_pending->list();
    if (changes.empty())
        return true;
    QMessageBox box(QMessageBox::Question, windowTitle(), m_words->loss(changes), QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::WindowModal);
    const QPushButton *applied = box.addButton(QMessageBox::Apply);
    const QPushButton *discarded = box.addButton(QMessageBox::Discard);
    QPushButton *stay = box.addButton(tr("&Stay"), QMessageBox::RejectRole);
    // Nothing is applied and nothing lost by a key that was meant for something else.
    box.setDefaultButton(stay);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() == applied)
        return apply();
    return box.clickedButton() == discarded;
}

bool olPreferencesDialog::apply()
{
    const std::vector<olPendingChange> changes = m_pending->list();
    if (!store())
        return false;
    if (!tellNotices())
        tellWhatWaits(changes);
    return true;
}

/// One line about what was applied and has no effect yet.
void olPreferencesDialog::tellWhatWaits(const std::vector<olPendingChange> &applied)
{
    QStringList import;
    QStringList start;
    for (const olPendingChange &change : applied) {
        const QString effect = olPreferencesSession::description(change.key).effect;
        if (olIsOnlyRecorded(change.key))
            continue;
        if (effect == QLatin1String("next import"))
            import << m_words->place(change.key);
        else if (effect == QLatin1String("next start"))
            start << m_words->place(change.key);
    }
    QStringList sentences;
    if (import.size() == 1)
        sentences << tr("%1 takes effect at the next import.").arg(import.first());
    else if (!import.isEmpty())
        sentences << tr("%1 settings take effect at the next import.").arg(import.size());
    if (start.size() == 1)
        sentences << tr("%1 takes effect at the next start.").arg(start.first());
    else if (!start.isEmpty())
        sentences << tr("%1 settings take effect at the next start.").arg(start.size());
    const bool canRestart =
        !start.isEmpty() && isSignalConnected(QMetaMethod::fromSignal(&olPreferencesDialog::restartAsked));
    if (!sentences.isEmpty())
        m_message->showNote(olSentences(sentences), canRestart ? tr("Restart Now") : QString());
}

bool olPreferencesDialog::store()
{
    const olResult<> committed = m_pending->commit();
    if (committed.isOk())
        m_message->clear();
    else
        m_message->showError(committed.error());
    return committed.isOk();
}

/// False where there are none.
bool olPreferencesDialog::tellNotices()
{
    const QStringList notices = m_session.takeNotices();
    if (!notices.isEmpty())
        m_message->showNote(notices.join(QLatin1Char('\n')));
    return !notices.isEmpty();
}

void olPreferencesDialog::restorePage()
{
    if (olPreferencesEntry *entry = m_tree->chosen())
        m_pending->restore(*entry);
}

void olPreferencesDialog::restoreAll()
{
    m_pending->restoreAll();
    m_message->showNote(
        m_pending->isEmpty()
            ? tr("All settings have their defaults.")
            : tr("All pages show their defaults. OK or Apply makes them count, Cancel takes them back."));
}

void olPreferencesDialog::listModules()
{
    m_tree->list();
    filter();
}

void olPreferencesDialog::showCurrent()
{
    olPreferencesEntry *entry = m_tree->chosen();
    m_restorePage->setVisible(entry);
    m_locked->setVisible(false);
    m_pageNote->setVisible(false);
    if (!entry) {
        m_title->clear();
        m_pages->setCurrentWidget(m_nothing);
        return;
    }
    if (!isVisible())
        return;
    m_pending->page(*entry);
    m_title->setText(entry->name());
    listLocked(*entry);
    olPageFrame *frame = frameOf(*entry);
    m_pageNote->setText(frame->note());
    m_pageNote->setVisible(!frame->note().isEmpty());
    m_pages->setCurrentWidget(frame);
    revealFirstHit();
    refresh();
}

olPageFrame *olPreferencesDialog::frameOf(olPreferencesEntry &entry)
{
    olPageFrame *&frame = m_frames[entry.page()];
    if (!frame) {
        frame = new olPageFrame(*entry.page());
        m_pages->addWidget(frame);
        m_menu->addTo(m_search->controls(entry));
        m_tips->addTo(m_search->controls(entry));
        lockSettings(entry, *frame);
        frame->tell(entry, m_search->controls(entry));
        frame->marks().setHits(m_found->hits(&entry));
        connect(&frame->marks(), &olSettingMarks::clicked, this,
                [this](QWidget *control, const QPoint &place) { m_menu->openFor(control, place); });
    }
    return frame;
}

void olPreferencesDialog::lockSettings(olPreferencesEntry &entry, olPageFrame &frame)
{
    for (const olFoundControl &control : m_search->controls(entry)) {
        for (const QString &key : control.keys) {
            const QString text = m_words->lock(control, key.toStdString());
            if (!text.isEmpty())
                frame.lock(control, text);
        }
    }
}

/// What is disabled cannot be reached by keyboard, so the page's locked settings are also listed in its header.
void olPreferencesDialog::listLocked(olPreferencesEntry &entry)
{
    QMenu *menu = m_locked->menu();
    menu->clear();
    for (const olFoundControl &control : m_search->controls(entry)) {
        for (const QString &key : control.keys) {
            const QString text = m_words->lock(control, key.toStdString());
            if (text.isEmpty())
                continue;
            menu->addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), this, [this, text, key] {
                goTo(key);
                m_message->showNote(text);
            });
        }
    }
    m_locked->setText(tr("%1 Locked").arg(menu->actions().size()));
    m_locked->setVisible(!menu->isEmpty());
}

/// The page stands between its header and the buttons, whichever pages came into the dialog before it.
std::vector<QWidget *> olPreferencesDialog::tabStops() const
{
    std::vector<QWidget *> stops{m_searchField, m_changedOnly, m_more, m_tree, m_restorePage, m_locked};
    stops.push_back(m_foundList);
    const auto *frame = qobject_cast<olPageFrame *>(m_pages->currentWidget());
    if (QWidget *page = frame ? frame->page() : nullptr) {
        for (QWidget *widget = page->nextInFocusChain(); widget != page; widget = widget->nextInFocusChain()) {
            if (page->isAncestorOf(widget))
                stops.push_back(widget);
        }
    }
    // Both lines have buttons of their own while they are in sight.
    for (const QWidget *line : {static_cast<QWidget *>(m_outside), static_cast<QWidget *>(m_message)}) {
        const auto buttons = line->findChildren<QAbstractButton *>();
        stops.insert(stops.end(), buttons.begin(), buttons.end());
    }
    for (QWidget *button : std::initializer_list<QWidget *>{
             m_changes, m_preview, m_buttons->button(QDialogButtonBox::Ok), m_buttons->button(QDialogButtonBox::Cancel),
             m_buttons->button(QDialogButtonBox::Apply)})
        stops.push_back(button);
    const auto takesNoTab = [this](const QWidget *widget) {
        return !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() || !widget->isVisible() ||
               !widget->isEnabled() || widget->window() != this;
    };
    stops.erase(std::remove_if(stops.begin(), stops.end(), takesNoTab), stops.end());
    return stops;
}

bool olPreferencesDialog::focusNextPrevChild(bool next)
{
    const std::vector<QWidget *> stops = tabStops();
    const auto now = std::find(stops.begin(), stops.end(), focusWidget());
    if (now == stops.end())
        return QDialog::focusNextPrevChild(next);
    const std::size_t step = next ? 1 : stops.size() - 1;
    const auto index = (std::size_t(now - stops.begin()) + step) % stops.size();
    stops[index]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void olPreferencesDialog::giveBack(QWidget *page)
{
    m_pending->forget(page);
    m_found->clear();
    delete m_frames.take(page);
}

bool olPreferencesDialog::filter()
{
    const bool isFiltered = findSettings();
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        if (olPageFrame *frame = m_frames.value(entry->page()))
            frame->marks().setHits(m_found->hits(entry));
    }
    if (!isFiltered) {
        m_tree->showAll();
        showCurrent();
        return false;
    }
    m_tree->showOnly(m_found->counts());
    showFound();
    return true;
}

/// False where nothing is searched for.
bool olPreferencesDialog::findSettings()
{
    const QString text = m_searchField->text().simplified();
    const bool isFiltered = !text.isEmpty() || m_changedOnly->isChecked();
    if (isFiltered)
        m_found->find(text, m_changedOnly->isChecked());
    else
        m_found->clear();
    m_foundList->list(
        m_found->size(), [this](int row, olFoundSettings::Column column) { return m_found->text(row, column); },
        text.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    return isFiltered;
}

/// In place of the pages, until one of them is asked for.
void olPreferencesDialog::showFound()
{
    const QString text = m_searchField->text().simplified();
    m_restorePage->setVisible(false);
    m_locked->setVisible(false);
    m_pageNote->setVisible(false);
    const int count = m_found->size();
    if (count == 0)
        m_nothing->setText(text.isEmpty() ? tr("Every setting has its default.")
                                          : tr("Nothing matches \"%1\".").arg(m_searchField->text()));
    m_pages->setCurrentWidget(count == 0 ? static_cast<QWidget *>(m_nothing) : m_foundList);
    const QString told = count == 0 ? m_nothing->text() : count == 1 ? tr("1 Setting") : tr("%1 Settings").arg(count);
    if (m_title->text() == told)
        return;
    m_title->setText(count == 0 ? QString() : told);
    m_title->setAccessibleName(told);
    QAccessibleEvent alert(m_title, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void olPreferencesDialog::goToFound(int row)
{
    const auto [entry, control] = m_found->row(row);
    if (!entry)
        return;
    m_tree->choose(entry->name());
    showCurrent();
    if (!control.widget) {
        m_tree->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (olPageFrame *frame = m_frames.value(entry->page()))
        frame->reveal(control);
    control.widget->setFocus(Qt::TabFocusReason);
}

void olPreferencesDialog::openMenuOfFound(int row, const QPoint &globalPosition)
{
    const auto [entry, control] = m_found->row(row);
    if (!control.widget)
        return;
    m_menu->addTo(m_search->controls(*entry));
    m_menu->openFor(control.widget, globalPosition);
}

void olPreferencesDialog::revealFirstHit()
{
    const olPreferencesEntry *entry = m_tree->chosen();
    const std::vector<olFoundControl> hits = m_found->hits(entry);
    const auto inSight = [](const olFoundControl &hit) { return hit.widget && hit.widget->isVisible(); };
    olPageFrame *frame = entry ? m_frames.value(entry->page()) : nullptr;
    if (!frame || hits.empty())
        return;
    // The tab in front stays there while it has a hit.
    const auto first = std::find_if(hits.begin(), hits.end(), inSight);
    frame->reveal(first == hits.end() ? hits.front() : *first);
}

bool olPreferencesDialog::openAt(const QString &key)
{
    const olFoundControl *control = m_search->control(key.toStdString());
    if (!control || !control->widget)
        return false;
    open({});
    goTo(key);
    return true;
}

void olPreferencesDialog::goTo(const QString &key)
{
    const olPreferencesEntry *owner = m_pending->ownerOf(key.toStdString());
    const olFoundControl *control = m_search->control(key.toStdString());
    if (!owner || !control || !control->widget)
        return;
    // The index may be built anew on the way.
    const olFoundControl shown = *control;
    QWidget *widget = control->widget;
    m_searchField->clear();
    m_changedOnly->setChecked(false);
    m_tree->choose(owner->name());
    if (olPageFrame *frame = m_frames.value(owner->page()))
        frame->reveal(shown);
    widget->setFocus(Qt::TabFocusReason);
}

void olPreferencesDialog::refresh()
{
    m_refresh.stop();
    const std::vector<olPendingChange> changes = m_pending->list();
    const std::size_t count = changes.size();
    QPushButton *apply = m_buttons->button(QDialogButtonBox::Apply);
    // What is disabled or goes would hand the focus on to whatever comes next.
    if (count == 0 && (apply->hasFocus() || m_changes->hasFocus()))
        (m_workedAt && m_workedAt->isVisible() && m_workedAt->isEnabled() ? m_workedAt.data() : m_tree)->setFocus();
    m_changes->setText(changesText(count));
    m_changes->setVisible(count > 0);
    apply->setEnabled(count > 0);
    m_pending->preview(m_preview->isChecked());
    std::set<const olPreferencesEntry *> pending;
    for (const olPendingChange &change : changes)
        pending.insert(change.entry);
    m_tree->mark([&](const olPreferencesEntry &entry) {
        return pending.count(&entry) != 0             ? olModuleTree::Mark::Pending
               : m_pending->differsFromDefault(entry) ? olModuleTree::Mark::Changed
                                                      : olModuleTree::Mark::None;
    });
    // What differs from its default may be another thing now.
    if (m_changedOnly->isChecked() && m_pages->currentWidget() != m_nothing && m_pages->currentWidget() != m_foundList)
        findSettings();
    else if (m_changedOnly->isChecked())
        filter();
    const olPreferencesEntry *entry = m_tree->chosen();
    olPageFrame *frame = entry ? m_frames.value(entry->page()) : nullptr;
    if (!frame)
        return;
    frame->marks().setMarks(marksOn(*entry));
}

std::vector<olSettingMarks::Mark> olPreferencesDialog::marksOn(const olPreferencesEntry &entry) const
{
    std::vector<olSettingMarks::Mark> marks;
    for (const olFoundControl &control : m_search->controls(entry)) {
        // Of a control for several settings, the one that says most.
        auto state = olSettingState::Default;
        for (const QString &key : control.keys)
            state = std::max(state, m_pending->stateOf(key.toStdString()));
        if (!control.keys.isEmpty())
            marks.push_back({control, state});
    }
    return marks;
}

void olPreferencesDialog::showChanges()
{
    auto *view = new olChangesView(tr("Changes"), this);
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->offerWork();
    view->setChanges(m_words->pending());
    connect(view, &olChangesView::chosen, this, &olPreferencesDialog::goTo);
    connect(view, &olChangesView::takeBackAsked, this,
            [this, view](const QStringList &keys, const QStringList &places) {
                for (int index = 0; index < keys.size(); ++index) {
                    if (!keys[index].isEmpty())
                        m_pending->takeBack(keys[index].toStdString());
                    else if (const olPreferencesEntry *entry = olPreferencesRegistry::the().find(places[index]))
                        m_pending->takeBack(*entry);
                }
                view->setChanges(m_words->pending());
                if (m_pending->isEmpty())
                    view->accept();
            });
    view->fit();
    view->open();
}

void olPreferencesDialog::offerPreview() { m_preview->setVisible(true); }

/// A setting whose own box asks before it is set is asked about here, too.
bool olPreferencesDialog::isAgreed(const olSettingWarning &question)
{
    olConsentBox box(question, this);
    box.setWindowModality(Qt::WindowModal);
    box.exec();
    return box.isAgreed();
}
