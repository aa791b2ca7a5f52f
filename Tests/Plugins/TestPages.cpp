#include "Editing/olPageIndex.h"
#include "Plugins/PageText.h"
#include "Plugins/SettingWalk.h"
#include "State/olHostState.h"
#include "State/olValue.h"
#include "Support/BoxWatch.h"
#include "Support/PluginTest.h"
#include "Support/Transcript.h"

#include <QAbstractButton>
#include <QByteArrayList>
#include <QComboBox>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>
#include <map>

// What the pages show and do, as transcripts that a person can read. To bring one up to date, read what differs and
// copy the file that the failure names.

namespace
{

class Pages : public PluginTest
{
protected:
    /// The pages of an edition by the names of their modules.
    std::map<QString, QByteArrayList> forms(olEdition edition)
    {
        restart(edition);
        std::map<QString, QByteArrayList> pages;
        for (olPreferencesEntry *module : modules()) {
            if (module->page())
                pages[module->name()] = PageText::form(*module->page());
        }
        return pages;
    }

    static QByteArray indented(const QByteArrayList &lines)
    {
        return lines.isEmpty() ? QByteArray() : "  " + lines.join("\n  ") + '\n';
    }
};

TEST_F(Pages, EveryPageHasItsTextsRangesAndChoicesInTheirOrder)
{
    const auto full = forms(olEdition::Professional);
    QByteArray printed;
    std::map<QByteArray, QString> shown;
    for (olPreferencesEntry *module : modules()) {
        const QByteArray kind = module->page()->metaObject()->className();
        const QByteArrayList &lines = full.at(module->name());
        const auto [first, isNew] = shown.emplace(kind, module->name());
        printed += module->name().toUtf8();
        if (isNew)
            printed += '\n' + indented(lines);
        else
            printed +=
                ": as " + first->second.toUtf8() + '\n' + indented(PageText::difference(full.at(first->second), lines));
    }
    for (const auto &[edition, title] :
         {std::pair(olEdition::Enterprise, "Enterprise"), std::pair(olEdition::Design, "Design"),
          std::pair(olEdition::Essentials, "Essentials")}) {
        printed += QByteArray("\nIn ") + title + " otherwise\n";
        const auto reduced = forms(edition);
        for (const auto &[name, lines] : full) {
            const auto page = reduced.find(name);
            if (page == reduced.end())
                printed += name.toUtf8() + " has no page\n";
            else if (page->second != lines)
                printed += name.toUtf8() + '\n' + indented(PageText::difference(lines, page->second));
        }
    }
    expectTranscript("Plugins/pages", printed);
}

/// Also run on a screen of twice the resolution, which has to be set before the toolkit starts.
TEST_F(Pages, SizesInPixelsFollowTheResolutionOfTheScreen)
{
    const double scale = QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0;
    const auto scaled = [scale](int pixels) { return qRound(pixels * scale); };
    const QSize icon(scaled(24), scaled(24));

    const auto &table = control<QWidget>("Render Options", "backgroundTable");
    EXPECT_EQ(table.minimumSize(), QSize(scaled(300), scaled(150)));
    EXPECT_EQ(control<QWidget>("Render Options", "antialiaseTime").maximumWidth(), scaled(100));
    EXPECT_EQ(control<QWidget>("Render Options", "fixedWidth").minimumWidth(), scaled(100));
    EXPECT_EQ(control<QWidget>("Render Options", "fixedHeight").minimumWidth(), scaled(100));

    const auto &help = control<QAbstractButton>("Help", "browsePath");
    EXPECT_EQ(help.iconSize(), icon);
    EXPECT_EQ(help.minimumSize(), icon);
    EXPECT_EQ(help.maximumSize(), icon);
    const auto &path = control<QAbstractButton>("FileIO", "browseTmpPath");
    EXPECT_EQ(path.iconSize(), icon + QSize(2, 2));
    EXPECT_EQ(path.minimumSize(), icon + QSize(2, 2));
    EXPECT_EQ(path.maximumSize(), icon + QSize(2, 2));
}

/// All that a control's change may change on its page.
struct Look {
    QByteArray state;
    bool isEnabled;
    bool isHidden;
    QString toolTip;
};

using Looks = std::map<QWidget *, Look>;

/// Does to a control what a user may do, all that there is to choose from one after the other.
class Edits
{
public:
    explicit Edits(QWidget &control) : m_control(control) {}

    [[nodiscard]] int count() const
    {
        const auto *combo = qobject_cast<QComboBox *>(&m_control);
        return combo ? combo->count() : 1;
    }

    /// From an index or a state that it can have, not from a number.
    void back(int index) const
    {
        if (!m_control.property("value").isValid())
            (*this)(index);
    }

    /// False for what cannot be edited.
    bool operator()(int which) const
    {
        if (auto *combo = qobject_cast<QComboBox *>(&m_control))
            combo->setCurrentIndex(which);
        else if (PageText::state(m_control) == "on" || PageText::state(m_control) == "off")
            m_control.setProperty("checked", PageText::state(m_control) == "off");
        else if (m_control.property("value").isValid())
            m_control.setProperty("value", m_control.property("value").toDouble() + 0.5);
        else
            return false;
        return true;
    }

private:
    QWidget &m_control;
};

class Reactions : public Pages
{
protected:
    static Looks look(const QWidget &page)
    {
        Looks looks;
        for (QWidget *widget : page.findChildren<QWidget *>()) {
            const bool isHidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
            looks[widget] = {PageText::state(*widget), widget->isEnabledTo(widget->parentWidget()), isHidden,
                             widget->toolTip()};
        }
        return looks;
    }

    static QByteArray changes(const QWidget &page, const Looks &before, const QWidget &edited)
    {
        QByteArrayList found;
        for (const auto &[widget, now] : look(page)) {
            const auto known = before.find(widget);
            if (known == before.end())
                continue;
            const Look &then = known->second;
            const auto add = [&, widget = widget](const QByteArray &verb, const QByteArray &rest = {}) {
                found << verb + ' ' + PageText::name(page, *widget) + rest;
            };
            if (then.isEnabled != now.isEnabled)
                add(now.isEnabled ? "enables" : "disables");
            if (then.isHidden != now.isHidden)
                add(now.isHidden ? "hides" : "shows");
            if (then.toolTip != now.toolTip)
                add("explains", ": " + now.toolTip.toUtf8());
            if (then.state != now.state && widget != &edited && !edited.isAncestorOf(widget))
                add("sets", " to " + now.state);
        }
        std::sort(found.begin(), found.end());
        return found.join(", ");
    }

    /// What each edit of each control moves that a user can reach, starting from everything on or off, and what editing
    /// it back does not move back.
    static QByteArrayList reactions(olPreferencesEntry &module, bool on)
    {
        QByteArrayList lines;
        QWidget &page = *module.page();
        const olPageIndex index(page);
        for (const olPageControl &control : index.controls()) {
            if (!olPageIndex::isShown(page, *control.widget))
                continue;
            const Edits edit(*control.widget);
            for (int which = 0; which < edit.count(); ++which) {
                SettingWalk::setAll(module, on);
                module.updateGUI();
                const Looks before = look(page);
                const int first = control.widget->property("currentIndex").toInt();
                if (!edit(which))
                    continue;
                const QByteArray there = changes(page, before, *control.widget);
                const QByteArray state = PageText::state(*control.widget);
                edit.back(first);
                const QByteArray back = changes(page, before, *control.widget);
                if (!there.isEmpty() || !back.isEmpty())
                    lines += (on ? "" : "(others off) ") + control.path().toUtf8() + " = " + state + ": " +
                             (there.isEmpty() ? "nothing" : there) +
                             (back.isEmpty() ? QByteArray() : "; and when it is set back " + back);
            }
        }
        return lines;
    }
};

/// What the formats do all alike stands at the first of them.
TEST_F(Reactions, EachControlMovesOnThePageWhatItMust)
{
    const BoxWatch confirm([](QMessageBox &box) { box.buttons().first()->click(); });
    QByteArray printed;
    QByteArrayList known;
    for (olPreferencesEntry *module : modules()) {
        printed += module->name().toUtf8() + '\n';
        for (const QByteArray &line : reactions(*module, true) + reactions(*module, false)) {
            if (!known.contains(line))
                printed += "  " + line + '\n';
            known << line;
        }
    }
    expectTranscript("Plugins/reactions", printed);
}

/// What the host answers when it is asked; the second answers differ from the first in everything.
void setFacts(bool first)
{
    olHostState &host = olHostState::the();
    for (auto *fact : {&host.navUsePivotBasedPanning, &host.navDollyToPivot, &host.navOrbitMode, &host.progressVisible,
                       &host.camerasVisible, &host.lightsVisible, &host.jointsVisible})
        *fact = first;
    host.progressPosition = first ? 1 : 0;
    host.navSpeedMode = first ? 0 : 2;
    host.navDollyAxis = first ? 1 : 2;
    const int number = first ? 100 : 200;
    host.navPanningSpeed = float(number + 1);
    host.navDollySpeed = float(number + 2);
    host.navOrbitDetectionArea = number + 3;
    host.navOrbitDetectionTime = number + 4;
    host.progressBaseSize = number + 5;
}

class ShownValues : public Pages
{
protected:
    static QWidget *controlOf(const olPreferencesEntry &module, const std::string &key)
    {
        for (QWidget *widget : module.page()->findChildren<QWidget *>()) {
            if (widget->property("olSettingKeys").toStringList().contains(QString::fromStdString(key)))
                return widget;
        }
        return nullptr;
    }

    /// The formats have the same settings, each under its own name.
    static QByteArray name(const olPreferencesEntry &module, const std::string &key)
    {
        const bool isFormat = module.page()->inherits("olFileTypePreferencesGUIW");
        return QByteArray::fromStdString(isFormat ? key.substr(key.find("Options ")) : key);
    }

    static QByteArray shown(olPreferencesEntry &module, const QWidget &control)
    {
        module.updateGUI();
        return PageText::state(control);
    }

    /// What is stored once the page is confirmed as it stands.
    static QByteArray taken(olPreferencesEntry &module, const std::string &key)
    {
        module.updateData();
        return QByteArray::fromStdString(olValue::toJson(module.value(key)));
    }

    static QByteArray ofSetting(olPreferencesEntry &module, const std::string &key, const QWidget &control)
    {
        module.setDefaults(true);
        const boost::any value = module.value(key);
        const boost::any other = SettingWalk::another(value);
        QByteArray line = shown(module, control);
        module.setValue(key, other);
        const QByteArray otherShown = shown(module, control);
        line += " | " + otherShown;
        module.setValue(key, value);
        const QByteArray back = taken(module, key);
        if (back != QByteArray::fromStdString(olValue::toJson(other)))
            line += " taken as " + back;
        if (module.home() != olHome::Record)
            return line;

        // Once the value is gone, the page keeps what it showed or shows what the host says.
        setFacts(true);
        module.setValue(key, other);
        module.updateGUI();
        module.removeValue(key);
        const QByteArray first = shown(module, control);
        setFacts(false);
        const QByteArray second = shown(module, control);
        if (first != otherShown || second != otherShown)
            line += " | absent " + first + (second == first ? QByteArray() : " or " + second);
        return line;
    }
};

/// The default as its control shows it, another value, and what is shown without one where that is not what was shown
/// before. What the formats show all alike stands at the first of them.
TEST_F(ShownValues, EveryControlShowsItsSettingAndGivesItBack)
{
    const BoxWatch confirm([](QMessageBox &box) { box.accept(); });
    QByteArray printed;
    QByteArrayList known;
    for (olPreferencesEntry *module : modules()) {
        printed += module->name().toUtf8() + '\n';
        module->setDefaults(true);
        const auto offered = module->defaults();
        for (const olOfferedDefault &setting : offered) {
            const QWidget *control = controlOf(*module, setting.key);
            if (!control)
                continue;
            const QByteArray line = name(*module, setting.key) + ": " + ofSetting(*module, setting.key, *control);
            if (!known.contains(line))
                printed += "  " + line + '\n';
            known << line;
        }
    }
    expectTranscript("Plugins/shown-values", printed);
}

} // namespace
