#include "DialogTest.h"

#include "Support/CleanHost.h"
#include "Utilities/olWithoutMnemonic.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QFormLayout>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

namespace
{

constexpr auto shadowsKey = "Studio shadows";
constexpr auto samplesKey = "Studio samples";
constexpr auto modeKey = "Studio mode";
constexpr auto scaleKey = "Studio scale";
constexpr auto titleKey = "Studio title";
constexpr auto hiddenKey = "Studio hidden";
constexpr auto seedKey = "Studio seed";

template <class T> T read(const char *key)
{
    const T *value = boost::any_cast<T>(&olPreferences::getData().get(key));
    return value ? *value : T();
}

} // namespace

StudioAccess::StudioAccess(StudioPage &page) : QObject(&page), m_page(page)
{
    setObjectName(QStringLiteral("olSettingAccess"));
}

QVariant StudioAccess::value(const QString &key) const
{
    if (key == QLatin1String(shadowsKey))
        return m_page.shadows->isChecked();
    if (key == QLatin1String(samplesKey))
        return m_page.samples->value();
    if (key == QLatin1String(modeKey))
        return m_page.mode->currentIndex();
    if (key == QLatin1String(scaleKey))
        return m_page.scale->text().toFloat();
    if (key == QLatin1String(titleKey))
        return m_page.title->text();
    if (key == QLatin1String(hiddenKey))
        return m_page.hidden->isChecked();
    return {};
}

QVariantMap StudioAccess::describe(const QString &key) const
{
    if (key == QLatin1String(samplesKey))
        return {{"type", "int"}, {"default", 4}, {"minimum", 0}, {"maximum", 99}};
    if (key == QLatin1String(modeKey)) {
        QVariantList choices;
        for (int item = 0; item < m_page.mode->count(); ++item)
            choices << QVariantMap{{"value", item}, {"text", m_page.mode->itemText(item)}};
        return {{"type", "int"}, {"default", 0}, {"choices", choices}};
    }
    return {};
}

QString StudioAccess::text(const QString &key, const QVariant &value) const
{
    return key == QLatin1String(modeKey) ? m_page.mode->itemText(value.toInt()) : QString();
}

StudioPage::StudioPage()
{
    auto *first = new QWidget;
    auto *second = new QWidget;
    tabs->addTab(first, QStringLiteral("Picture"));
    tabs->addTab(second, QStringLiteral("Texts"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);

    auto *picture = new QFormLayout(first);
    picture->addRow(shadows);
    picture->addRow(samplesLabel, samples);
    picture->addRow(QStringLiteral("&Mode"), mode);
    picture->addRow(hidden);
    auto *texts = new QFormLayout(second);
    texts->addRow(QStringLiteral("Sca&le"), scale);
    texts->addRow(QStringLiteral("&Title"), title);
    samplesLabel->setBuddy(samples);
    samples->setToolTip(QStringLiteral("How often each <b>pixel</b> is computed"));
    mode->addItems({QStringLiteral("Hasty"), QStringLiteral("Accurate")});
    hidden->hide();
    setMinimumHeight(3000);

    tag(*shadows, shadowsKey);
    tag(*samples, samplesKey);
    tag(*mode, modeKey);
    tag(*scale, scaleKey);
    tag(*title, titleKey);
    tag(*hidden, hiddenKey);
    new StudioAccess(*this);

    connect(shadows, &QCheckBox::toggled, this, [this](bool on) {
        samples->setEnabled(true);
        if (on && !isFilling)
            ++questions;
    });
}

void StudioPage::tag(QWidget &control, const char *key)
{
    control.setProperty("olSettingKeys", QStringList{QLatin1String(key)});
}

StudioModule::StudioModule(const QString &name) : olPreferences(name, QString()) { addPreferencesGUI(&page); }

StudioModule::~StudioModule() { subPreferencesGUI(&page); }

void StudioModule::setDefaults(olMessage &, bool flag)
{
    getData().set(shadowsKey, true, flag);
    getData().set(samplesKey, 4, flag);
    getData().set(modeKey, 0, flag);
    getData().set(scaleKey, 1.5f, flag);
    getData().set(titleKey, QString(), flag);
    getData().set(hiddenKey, false, flag);
    getData().set(seedKey, 7, flag);
}

void StudioModule::updateGUI()
{
    page.isFilling = true;
    page.shadows->setChecked(read<bool>(shadowsKey));
    page.samples->setValue(read<int>(samplesKey));
    page.mode->setCurrentIndex(read<int>(modeKey));
    page.scale->setText(QString::number(double(read<float>(scaleKey)), 'g', 6));
    page.title->setText(read<QString>(titleKey));
    page.hidden->setChecked(read<bool>(hiddenKey));
    page.isFilling = false;
}

void StudioModule::updateData()
{
    const auto take = [](const char *key, auto value, StudioModule &module) {
        if (read<decltype(value)>(key) == value)
            module.addUnchanged(key);
        getData().set(key, value, true);
    };
    take(shadowsKey, page.shadows->isChecked(), *this);
    take(samplesKey, page.samples->value(), *this);
    take(modeKey, page.mode->currentIndex(), *this);
    take(scaleKey, page.scale->text().toFloat(), *this);
    take(titleKey, page.title->text(), *this);
    take(hiddenKey, page.hidden->isChecked(), *this);
}

void StudioModule::applyPreferences()
{
    ++applied;
    changed.clear();
    for (const char *key : {shadowsKey, samplesKey, modeKey, scaleKey, titleKey, hiddenKey}) {
        if (isChanged(key))
            changed.emplace_back(key);
    }
}

DialogTest::DialogTest() = default;

DialogTest::~DialogTest()
{
    EXPECT_EQ(answered, asked) << "a question that the test expected never came";
    dialog.reset();
    session.reset();
    cleanHost();
}

void DialogTest::start(const QByteArray &site)
{
    if (!site.isEmpty()) {
        QFile file(siteFile);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(site);
    }
    session = std::make_unique<olPreferencesSession>(store, QStringList{siteFile});
    ASSERT_EQ(session->loadStore().error(), QString());
    session->start();
    module.applied = 0;
    dialog = std::make_unique<olPreferencesDialog>(*session);
    dialog->open(QStringLiteral("Studio"));
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

QStringList DialogTest::listed() const
{
    QStringList names;
    for (QTreeWidgetItemIterator item(dialog->findChild<QTreeWidget *>()); *item; ++item) {
        if (!(*item)->isHidden())
            names << (*item)->text(0);
    }
    return names;
}

void DialogTest::answer(const QString &text)
{
    ++asked;
    QTimer::singleShot(0, dialog.get(), [this, text] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (QAbstractButton *button : box->buttons()) {
            if (olWithoutMnemonic(button->text()) == text) {
                ++answered;
                button->click();
                return;
            }
        }
        box->reject();
    });
}

QAction *DialogTest::menuAction(QWidget &widget, const QString &name) const
{
    const QPoint middle = widget.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &event);
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    return menu ? menu->findChild<QAction *>(name) : nullptr;
}
