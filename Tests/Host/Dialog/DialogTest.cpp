#include "DialogTest.h"

#include "Support/CleanHost.h"
#include "Support/Files.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFormLayout>
#include <QMenu>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <stdexcept>

StudioPage::StudioPage()
{
    auto *first = new QWidget;
    auto *second = new QWidget;
    tabs->addTab(first, "Picture");
    tabs->addTab(second, "Texts");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);

    auto *picture = new QFormLayout(first);
    picture->addRow(shadows);
    picture->addRow(samplesLabel, samples);
    picture->addRow("&Mode", mode);
    picture->addRow(hidden);
    auto *texts = new QFormLayout(second);
    texts->addRow("Sca&le", scale);
    texts->addRow("&Title", title);
    samplesLabel->setBuddy(samples);
    samples->setToolTip("How often each <b>pixel</b> is computed");
    mode->addItems({"Hasty", "Accurate"});
    hidden->hide();
    setMinimumHeight(3000);

    connect(shadows, &QCheckBox::toggled, this, [this](bool on) {
        samples->setEnabled(true);
        if (on && !isFilling)
            ++questions;
    });
}

StudioModule::StudioModule(const QString &name) : olModule(name, QString())
{
    const auto key = [&name](const char *ending) { return name.toStdString() + ' ' + ending; };
    settings().add(olSetting<bool>(key("shadows"), true), page.shadows);
    settings().add(olSetting<int>(key("samples"), 4), page.samples);
    settings().add(olSetting<int>(key("mode"), 0), page.mode);
    settings().add(olSetting<float>(key("scale"), 1.5f), page.scale);
    settings().add(olSetting<QString>(key("title"), QString()), page.title);
    settings().add(olSetting<bool>(key("hidden"), false), page.hidden);
    settings().addWithoutControl(olSetting<int>(key("seed"), 7));
    handOverPage();
}

void StudioModule::updateGUI()
{
    page.isFilling = true;
    olModule::updateGUI();
    page.isFilling = false;
}

void StudioModule::applyPreferences()
{
    ++applied;
    changed.clear();
    settings().each([this](const olListedSetting &setting) {
        if (setting.widget() && isChanged(setting.key().c_str()))
            changed.push_back(setting.key());
    });
}

DialogTest::~DialogTest()
{
    dialog.reset();
    session.reset();
    cleanHost();
}

void DialogTest::start(const QByteArray &site)
{
    if (!site.isEmpty())
        writtenFile(siteFile, site);
    session = std::make_unique<olPreferencesSession>(store, QStringList{siteFile});
    ASSERT_EQ(session->loadStore().error(), QString());
    session->start();
    module.applied = 0;
    dialog = std::make_unique<olPreferencesDialog>(*session);
    dialog->open("Studio");
    QApplication::setActiveWindow(dialog.get());
    QCoreApplication::processEvents();
}

QPushButton *DialogTest::button(QDialogButtonBox::StandardButton which) const
{
    return dialog->findChild<QDialogButtonBox *>()->button(which);
}

bool DialogTest::canApply() const
{
    QCoreApplication::processEvents();
    return button(QDialogButtonBox::Apply)->isEnabled();
}

bool DialogTest::says(const QString &text) const
{
    const auto labels = dialog->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->isVisible() && label->text().contains(text); });
}

QStringList DialogTest::listed() const
{
    QStringList names;
    for (QTreeWidgetItemIterator item(dialog->findChild<QTreeWidget *>()); *item; ++item) {
        if (!(*item)->isHidden())
            names << (*item)->text(0);
    }
    return names;
}

QAction &DialogTest::menuAction(QWidget &widget, const char *name, const QPoint &place)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QAction *action = menu ? menu->findChild<QAction *>(name) : nullptr;
    if (!action)
        throw std::runtime_error(std::string("no action ") + name);
    menu->close();
    return *action;
}
