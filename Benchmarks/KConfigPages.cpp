#include "KConfigPages.h"

#include "BareForms.h"
#include "State/olPreferencesEntry.h"
#include "Support/BenchHost.h"

#include <KConfigDialogManager>
#include <KConfigSkeleton>
#include <KSharedConfig>

#include <deque>

namespace
{

/// The values behind the items, which keep references to them.
struct Values {
    std::deque<bool> flags;
    std::deque<int> numbers;
    std::deque<double> fractions;
    std::deque<QString> texts;
};
Values values;

template <class Item, class Stored, class Value>
void addItem(KConfigSkeleton &skeleton, const QString &name, std::deque<Stored> &stored, const Value &value)
{
    stored.push_back(Stored(value));
    // The skeleton takes it.
    skeleton.addItem(new Item(QStringLiteral("Preferences"), name, stored.back(), Stored(value)), name);
}

/// False for a type that it has no plain item for.
bool addItemFor(KConfigSkeleton &skeleton, const QString &name, const boost::any &value)
{
    if (const auto *flag = boost::any_cast<bool>(&value))
        addItem<KCoreConfigSkeleton::ItemBool>(skeleton, name, values.flags, *flag);
    else if (const auto *number = boost::any_cast<int>(&value))
        addItem<KCoreConfigSkeleton::ItemInt>(skeleton, name, values.numbers, *number);
    else if (const auto *fraction = boost::any_cast<double>(&value))
        addItem<KCoreConfigSkeleton::ItemDouble>(skeleton, name, values.fractions, *fraction);
    else if (const auto *single = boost::any_cast<float>(&value))
        addItem<KCoreConfigSkeleton::ItemDouble>(skeleton, name, values.fractions, *single);
    else if (const auto *text = boost::any_cast<QString>(&value))
        addItem<KCoreConfigSkeleton::ItemString>(skeleton, name, values.texts, *text);
    else
        return false;
    return true;
}

} // namespace

KConfigPages::KConfigPages()
{
    KConfigDialogManager::propertyMap()->insert(QStringLiteral("QOLSlider"), "value");
    KConfigDialogManager::propertyMap()->insert(QStringLiteral("QOLWheelPrec"), "value");
    KConfigDialogManager::propertyMap()->insert(QStringLiteral("QGroupBox"), "checked");
    const KSharedConfigPtr inMemory = KSharedConfig::openConfig(QString(), KConfig::SimpleConfig);
    for (const olPreferencesEntry *module : BenchHost::modules()) {
        Page page{BareForms::of(module->className()), std::make_unique<KConfigSkeleton>(inMemory), nullptr};
        const auto controls = module->page()->findChildren<QWidget *>();
        for (const QWidget *control : controls) {
            const QStringList keys = control->property("olSettingKeys").toStringList();
            auto *twin = keys.isEmpty() || control->objectName().isEmpty()
                             ? nullptr
                             : page.form->findChild<QWidget *>(control->objectName());
            const QString name = module->name() + control->objectName();
            if (twin && addItemFor(*page.skeleton, name, module->value(keys.front().toStdString()))) {
                twin->setObjectName(QStringLiteral("kcfg_") + name);
                ++m_settings;
            }
        }
        page.skeleton->load();
        page.manager = new KConfigDialogManager(page.form.get(), page.skeleton.get()); // owned by the form
        page.manager->updateWidgets();
        page.manager->updateSettings();
        m_pages.push_back(std::move(page));
    }
}

KConfigPages::~KConfigPages() = default;

void KConfigPages::fill() const
{
    for (const Page &page : m_pages)
        page.manager->updateWidgets();
}
