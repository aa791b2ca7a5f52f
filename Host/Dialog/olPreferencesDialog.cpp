#include "Dialog/olPreferencesDialog.h"

#include "Dialog/olChangesView.h"
#include "Dialog/olDialogMemory.h"
#include "Dialog/olHistoryView.h"
#include "Dialog/olMessageLine.h"
#include "Dialog/olModuleTree.h"
#include "Dialog/olOutsideLine.h"
#include "Dialog/olPageFrame.h"
#include "Dialog/olProfilesMenu.h"
#include "Dialog/olSettingMarks.h"
#include "Dialog/olSettingMenu.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olPreferencesImport.h"
#include "Editing/olSettingsSearch.h"
#include "Editing/olValueText.h"
#include "Session/olUndo.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

// What a window manager adds to a window, at its most.
constexpr QSize windowFrame(16, 48);

/// What the dialog would like to be, in characters of its font, so that it grows with the text.
QSize comfortableSize(const QWidget &widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return {metrics.averageCharWidth() * 130, metrics.height() * 36};
}

QString changesText(std::size_t count)
{
    if (count == 0)
        return olPreferencesDialog::tr("No Changes");
    return count == 1 ? olPreferencesDialog::tr("1 Change...") : olPreferencesDialog::tr("%1 Changes...").arg(count);
}

} // namespace

olPreferencesDialog::olPreferencesDialog(olPreferencesSession &session, QWidget *parent)
    : QDialog(parent),
      m_session(session),
      m_pending(std::make_unique<olPendingChanges>(session)),
      m_search(std::make_unique<olSettingsSearch>()),
      m_menu(std::make_unique<olSettingMenu>(session, *m_pending)),
      m_searchField(new QLineEdit),
      m_changedOnly(new QCheckBox(tr("Changed &only"))),
      m_more(new QPushButton(tr("&More"))),
      m_tree(new olModuleTree),
      m_splitter(new QSplitter),
      m_title(new QLabel),
      m_locked(new QPushButton),
      m_restorePage(new QPushButton(tr("Restore &Page"))),
      m_pages(new QStackedWidget),
      m_nothing(new QLabel),
      m_message(new olMessageLine),
      m_outside(new olOutsideLine(
          session, *m_pending, [this](const std::string &key) { return placeOf(key); },
          [this](const std::string &key, const boost::any &value) {
              const olFoundControl *control = m_search->control(key);
              return olValueText(value, control ? control->widget.data() : nullptr, value);
          })),
      m_changes(new QPushButton),
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
    m_searchField->setToolTip(tr("Finds settings by label, tooltip, choice and key (Ctrl+F)."));
    m_searchField->setClearButtonEnabled(true);
    m_changedOnly->setObjectName(QStringLiteral("changedOnly"));
    m_changedOnly->setToolTip(
        tr("Shows only the pages with settings that differ from their defaults, and marks them."));

    auto *menu = new QMenu(m_more);
    menu->addAction(tr("&Import..."), this, &olPreferencesDialog::chooseImport);
    menu->addAction(tr("&Export..."), this, &olPreferencesDialog::chooseExport);
    menu->addSeparator();
    auto *profiles = new olProfilesMenu({m_session.store().file(), m_session.siteFiles()}, this);
    menu->addMenu(profiles);
    connect(profiles, &olProfilesMenu::saveAsked, this, [this, profiles] { profiles->saveAs(m_pending->inForce()); });
    connect(profiles, &olProfilesMenu::done, m_message, &olMessageLine::showNote);
    connect(profiles, &olProfilesMenu::failed, m_message, &olMessageLine::showError);
    connect(profiles, &olProfilesMenu::chosen, this, [this](const QString &name, const QString &file) {
        preview(tr("Apply Profile %1").arg(name), tr("&Apply"), olPreferencesFile::read(file));
    });
    menu->addAction(tr("&History..."), this, &olPreferencesDialog::showHistory);
    menu->addSeparator();
    menu->addAction(tr("&Restore All Defaults"), this, &olPreferencesDialog::restoreAll);
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
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_pages->addWidget(m_nothing);

    auto *right = new QWidget;
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *header = new QHBoxLayout;
    // No wider than its text, which would else stand at its own side where reading goes the other way.
    header->addWidget(m_title);
    header->addStretch(1);
    header->addWidget(m_restorePage);
    layout->addLayout(header);
    layout->addWidget(m_locked, 0, Qt::AlignLeft);
    layout->addWidget(m_pages, 1);
    return right;
}

QWidget *olPreferencesDialog::buildBottom()
{
    m_message->setObjectName(QStringLiteral("message"));
    m_changes->setObjectName(QStringLiteral("changes"));
    m_changes->setAutoDefault(false);
    m_changes->setToolTip(tr("Lists what OK and Apply will change."));
    auto *bottom = new QWidget;
    auto *layout = new QHBoxLayout(bottom);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_changes);
    layout->addStretch(1);
    layout->addWidget(m_buttons);
    return bottom;
}

void olPreferencesDialog::connectParts()
{
    connect(m_searchField, &QLineEdit::textChanged, this, &olPreferencesDialog::filter);
    connect(m_changedOnly, &QCheckBox::toggled, this, &olPreferencesDialog::filter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &olPreferencesDialog::showCurrent);
    connect(m_restorePage, &QPushButton::clicked, this, &olPreferencesDialog::restorePage);
    connect(m_changes, &QPushButton::clicked, this, &olPreferencesDialog::showChanges);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &olPreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &olPreferencesDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &olPreferencesDialog::apply);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_searchField->setFocus(Qt::ShortcutFocusReason);
        m_searchField->selectAll();
    });
    connect(m_menu.get(), &olSettingMenu::lockAsked, this, [this](const QString &name, const QString &reason) {
        m_message->showNote(tr("%1 is locked: %2").arg(name, reason));
    });

    // A filling changes many controls at once, and one look at the end tells it all.
    connect(m_pending.get(), &olPendingChanges::edited, &m_refresh, QOverload<>::of(&QTimer::start));
    connect(&m_refresh, &QTimer::timeout, this, &olPreferencesDialog::refresh);

    const auto *registry = &olPreferencesRegistry::the();
    connect(registry, &olPreferencesRegistry::pageAboutToGo, this, &olPreferencesDialog::giveBack);
    // Queued, as a module is not whole yet when it registers, nor any more when it leaves.
    connect(registry, &olPreferencesRegistry::changed, this, &olPreferencesDialog::listModules, Qt::QueuedConnection);
}

void olPreferencesDialog::recall()
{
    const olDialogMemory memory = olDialogMemory::recall();
    const QSize size = memory.size.isValid() ? memory.size : comfortableSize(*this);
    resize(size.boundedTo(screen()->availableSize() - windowFrame));
    const int character = fontMetrics().averageCharWidth();
    if (memory.splitter.isEmpty() || !m_splitter->restoreState(memory.splitter))
        m_splitter->setSizes({character * 26, character * 104});
    m_splitter->setChildrenCollapsible(false);
    m_tree->choose(memory.page);
}

void olPreferencesDialog::remember() const
{
    const olPreferencesEntry *entry = m_tree->chosen();
    olDialogMemory{size(), m_splitter->saveState(), entry ? entry->name() : QString()}.keep();
}

void olPreferencesDialog::open(const QString &name)
{
    if (!name.isEmpty() && !m_tree->chosen())
        m_searchField->clear();
    m_tree->choose(name);
    if (!isVisible())
        m_searchField->setFocus();
    show();
    raise();
    activateWindow();
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
    filter();
    showCurrent();
    m_searchField->setFocus();
}

void olPreferencesDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous())
        remember();
}

void olPreferencesDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool asksForMenu =
        event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (event->key() == Qt::Key_Escape && !m_searchField->text().isEmpty())
        m_searchField->clear();
    else if (isEnter && m_searchField->hasFocus())
        focusFirstHit();
    else if (event->key() == Qt::Key_Down && m_searchField->hasFocus())
        m_tree->setFocus(Qt::TabFocusReason);
    else if (!asksForMenu || !m_menu->openFor(focusWidget()))
        QDialog::keyPressEvent(event);
}

void olPreferencesDialog::accept()
{
    // What the host has to say about the saving is read first; a second OK finds nothing more to do.
    if (!store() || tellNotices())
        return;
    m_pending->drop();
    QDialog::accept();
}

void olPreferencesDialog::reject()
{
    if (isVisible() && !mayLeave())
        return;
    // The next opening fills the pages again, over whatever was edited.
    m_pending->drop();
    QDialog::reject();
}

bool olPreferencesDialog::mayLeave()
{
    const std::size_t count = m_pending->list().size();
    if (count == 0)
        return true;
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    count == 1 ? tr("There is 1 change that is not applied yet.")
                               : tr("There are %1 changes that are not applied yet.").arg(count),
                    QMessageBox::NoButton, this);
    box.setWindowModality(Qt::WindowModal);
    const QPushButton *applied = box.addButton(QMessageBox::Apply);
    const QPushButton *discarded = box.addButton(QMessageBox::Discard);
    QPushButton *stay = box.addButton(tr("&Stay"), QMessageBox::RejectRole);
    box.setDefaultButton(QMessageBox::Apply);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() == applied)
        return apply();
    return box.clickedButton() == discarded;
}

bool olPreferencesDialog::apply()
{
    if (!store())
        return false;
    tellNotices();
    return true;
}

bool olPreferencesDialog::store()
{
    const QString error = m_pending->commit();
    if (error.isEmpty())
        m_message->clear();
    else
        m_message->showError(error);
    return error.isEmpty();
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
    m_pages->setCurrentWidget(frameOf(*entry));
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
        lockSettings(entry, *frame);
        frame->marks().setHits(m_hits.value(&entry));
        endTabOrderWithButtons();
    }
    return frame;
}

void olPreferencesDialog::lockSettings(olPreferencesEntry &entry, olPageFrame &frame)
{
    for (const olFoundControl &control : m_search->controls(entry)) {
        for (const QString &key : control.keys) {
            if (const auto reason = m_session.lockReason(key.toStdString()))
                frame.locks().lock(control, tr("%1 is locked: %2").arg(control.name, *reason));
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
            const auto reason = m_session.lockReason(key.toStdString());
            if (!reason)
                continue;
            const QString text = tr("%1 is locked: %2").arg(control.name, *reason);
            menu->addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), this,
                            [this, text] { m_message->showNote(text); });
        }
    }
    m_locked->setText(tr("%1 Locked").arg(menu->actions().size()));
    m_locked->setVisible(!menu->isEmpty());
}

/// The page came last into the order of Tab; the buttons belong behind it.
void olPreferencesDialog::endTabOrderWithButtons()
{
    QWidget *last = previousInFocusChain();
    for (QWidget *widget : std::initializer_list<QWidget *>{m_changes, m_buttons->button(QDialogButtonBox::Ok),
                                                            m_buttons->button(QDialogButtonBox::Apply),
                                                            m_buttons->button(QDialogButtonBox::Cancel)}) {
        if (last != widget)
            setTabOrder(last, widget);
        last = widget;
    }
}

void olPreferencesDialog::giveBack(QWidget *page)
{
    m_pending->forget(page);
    m_hits.clear();
    delete m_frames.take(page);
}

void olPreferencesDialog::filter()
{
    const QString text = m_searchField->text().simplified();
    const bool isFiltered = !text.isEmpty() || m_changedOnly->isChecked();
    m_hits.clear();
    std::vector<const olPreferencesEntry *> found;
    for (const olSearchResult &result : isFiltered ? m_search->find(text) : std::vector<olSearchResult>()) {
        std::vector<olFoundControl> hits;
        for (const olFoundControl *hit : result.hits) {
            const bool isChanged = std::any_of(hit->keys.begin(), hit->keys.end(), [&](const QString &key) {
                return m_pending->differsFromDefault(*result.entry, key.toStdString());
            });
            if (isChanged || !m_changedOnly->isChecked())
                hits.push_back(*hit);
        }
        if (hits.empty() && m_changedOnly->isChecked())
            continue;
        found.push_back(result.entry);
        m_hits.insert(result.entry, hits);
    }
    for (olPageFrame *frame : qAsConst(m_frames))
        frame->marks().setHits({});
    for (auto hits = m_hits.cbegin(); hits != m_hits.cend(); ++hits) {
        if (olPageFrame *frame = m_frames.value(hits.key()->page()))
            frame->marks().setHits(hits.value());
    }
    m_nothing->setText(text.isEmpty() ? tr("Every setting has its default.")
                                      : tr("Nothing matches \"%1\".").arg(m_searchField->text()));
    if (isFiltered)
        m_tree->showOnly(found);
    else
        m_tree->showAll();
    showCurrent();
}

void olPreferencesDialog::revealFirstHit()
{
    const olPreferencesEntry *entry = m_tree->chosen();
    const std::vector<olFoundControl> hits = m_hits.value(entry);
    const auto inSight = [](const olFoundControl &hit) { return hit.widget && hit.widget->isVisible(); };
    olPageFrame *frame = entry ? m_frames.value(entry->page()) : nullptr;
    if (!frame || hits.empty())
        return;
    // The tab in front stays there while it has a hit.
    const auto first = std::find_if(hits.begin(), hits.end(), inSight);
    frame->reveal(first == hits.end() ? hits.front() : *first);
}

void olPreferencesDialog::focusFirstHit()
{
    const olPreferencesEntry *entry = m_tree->chosen();
    for (const olFoundControl &hit : m_hits.value(entry)) {
        if (hit.widget && hit.widget->isVisible() && hit.widget->isEnabled() && hit.widget->focusPolicy()) {
            hit.widget->setFocus(Qt::TabFocusReason);
            return;
        }
    }
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

std::vector<olFoundControl> olPreferencesDialog::changedOn(const olPreferencesEntry &entry) const
{
    std::vector<olFoundControl> changed;
    for (const olFoundControl &control : m_search->controls(entry)) {
        const bool differs = std::any_of(control.keys.begin(), control.keys.end(), [&](const QString &key) {
            return m_pending->differsFromDefault(entry, key.toStdString());
        });
        if (differs)
            changed.push_back(control);
    }
    return changed;
}

void olPreferencesDialog::refresh()
{
    m_refresh.stop();
    const std::size_t count = m_pending->list().size();
    m_changes->setText(changesText(count));
    m_changes->setEnabled(count > 0);
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(count > 0);
    const olPreferencesEntry *entry = m_tree->chosen();
    if (olPageFrame *frame = entry ? m_frames.value(entry->page()) : nullptr)
        frame->marks().setChanged(changedOn(*entry));
}

/// As a person finds it: the page and the control's name; without a control the key.
QString olPreferencesDialog::placeOf(const std::string &key) const
{
    const olPreferencesEntry *owner = m_pending->ownerOf(key);
    const olFoundControl *control = m_search->control(key);
    const QString name = QString::fromStdString(key);
    if (!owner)
        return name;
    // One control may edit several settings, which only their keys tell apart.
    const bool isTold = control && control->keys.size() == 1 && !control->name.isEmpty();
    return tr("%1: %2", "module and setting").arg(owner->name(), isTold ? control->name : name);
}

void olPreferencesDialog::showChanges()
{
    auto *view = new olChangesView(tr("Changes"), this);
    view->setAttribute(Qt::WA_DeleteOnClose);
    for (const olPendingChange &change : m_pending->list()) {
        const QString before = olValueText(change.before, change.control, change.after);
        const QString after = olValueText(change.after, change.control, change.after);
        if (change.key.empty())
            view->addChange(change.entry->name(), {}, {}, tr("edited"));
        else
            view->addChange(placeOf(change.key), QString::fromStdString(change.key), before, after);
    }
    connect(view, &olChangesView::chosen, this, &olPreferencesDialog::goTo);
    view->fit();
    view->open();
}

void olPreferencesDialog::chooseImport()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Import Preferences"), {}, tr("Preferences (*.json);;All files (*)"));
    if (!file.isEmpty())
        importFrom(file);
}

void olPreferencesDialog::importFrom(const QString &file)
{
    preview(tr("Import Preferences"), tr("&Import"), olPreferencesFile::read(file));
}

void olPreferencesDialog::preview(const QString &title, const QString &action,
                                  const olPreferencesFile::Contents &contents)
{
    if (!contents.error.isEmpty()) {
        m_message->showError(contents.error);
        return;
    }
    const auto controlOf = [this](const std::string &key) -> QWidget * {
        const olFoundControl *control = m_search->control(key);
        return control ? control->widget.data() : nullptr;
    };
    const auto valueOf = [this](const std::string &key) { return m_pending->value(key); };
    const olPreferencesImport import(m_session, contents, valueOf, controlOf);

    auto *view = new olChangesView(title, this);
    view->setAttribute(Qt::WA_DeleteOnClose);
    view->setIntroduction(import.changes.empty()
                              ? tr("Nothing would change.")
                              : tr("These settings get new values. They stay pending until OK or Apply."));
    for (const olPreferencesImport::Change &change : import.changes) {
        const QWidget *control = controlOf(change.key);
        view->addChange(placeOf(change.key), QString::fromStdString(change.key),
                        olValueText(change.before, control, change.before),
                        olValueText(change.after, control, change.before));
    }
    for (const olSkippedSetting &skipped : import.skipped)
        view->addSkipped(QString::fromStdString(skipped.key), skipped.reason);
    view->askFor(action);
    connect(view, &QDialog::accepted, this, [this, values = import.values()] { m_pending->put(values); });
    view->fit();
    view->open();
}

void olPreferencesDialog::showHistory()
{
    const olUndo undo(m_session, 0);
    if (!undo.error().isEmpty()) {
        m_message->showError(undo.error());
        return;
    }
    auto *view = new olHistoryView(undo.history(), this);
    view->setAttribute(Qt::WA_DeleteOnClose);
    connect(view, &olHistoryView::chosen, this, &olPreferencesDialog::goBack);
    view->open();
}

void olPreferencesDialog::goBack(std::size_t saves)
{
    const olUndo undo(m_session, saves);
    olPreferencesFile::Contents earlier{{}, undo.left(), undo.error()};
    for (const olStoreRows::Change &change : undo.changes())
        earlier.settings[change.key.second] = undo.value(change.key, change.after);
    preview(tr("Go Back"), tr("&Go Back"), earlier);
}

void olPreferencesDialog::chooseExport()
{
    const QString file = QFileDialog::getSaveFileName(this, tr("Export Preferences"), tr("preferences.json"),
                                                      tr("Preferences (*.json);;All files (*)"));
    if (!file.isEmpty())
        exportTo(file);
}

void olPreferencesDialog::exportTo(const QString &file)
{
    const QString error = olPreferencesFile::write(file, m_pending->inForce());
    if (!error.isEmpty())
        m_message->showError(error);
    else if (m_pending->isEmpty())
        m_message->showNote(tr("The preferences were written to %1.").arg(file));
    else
        m_message->showNote(tr("The preferences in force were written to %1, without the pending changes.").arg(file));
}
