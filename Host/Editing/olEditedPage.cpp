#include "Editing/olEditedPage.h"

#include "Editing/olPageIndex.h"
#include "Session/olValueOverlay.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "Widgets/QOLColorManipulator.h"

#include <OpenSG/OSGColor.h>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QWidget>

#include <algorithm>

namespace
{

/// Whether it says nothing: a key that is absent, or a list of nothing.
bool isNothing(const boost::any &value)
{
    const auto *strings = boost::any_cast<std::vector<std::string>>(&value);
    const auto *floats = boost::any_cast<std::vector<float>>(&value);
    const auto *colors = boost::any_cast<std::vector<osg::Color3f>>(&value);
    return value.empty() || (strings && strings->empty()) || (floats && floats->empty()) || (colors && colors->empty());
}

/// Whether the two are one value to a person: zeros have no signs, and what is no number is always itself.
bool isSame(const boost::any &left, const boost::any &right)
{
    if (isNothing(left) || isNothing(right))
        return isNothing(left) && isNothing(right);
    return olValue::equal(left, right) || olValue::identical(left, right);
}

QList<QWidget *> withDescendants(QWidget &page) { return QList<QWidget *>{&page} + page.findChildren<QWidget *>(); }

} // namespace

olEditedPage::olEditedPage(const olPreferencesSession &session, olPreferencesEntry &entry)
    : m_session(session), m_entry(entry), m_access(entry), m_guard(entry)
{
    collectControls();
    watch();
    if (m_held.empty())
        return;
    // After the turn in which something wrote to it, be it one control for many.
    m_putBack.setSingleShot(true);
    connect(this, &olEditedPage::edited, &m_putBack, [this] {
        if (!m_isPuttingBack)
            m_putBack.start();
    });
    connect(&m_putBack, &QTimer::timeout, this, &olEditedPage::putBackHeld);
}

void olEditedPage::collectControls()
{
    const olPageIndex index(*m_entry.page());
    for (const olPageControl &control : index.controls()) {
        for (const QString &key : control.settingKeys) {
            const std::string name = key.toStdString();
            if (m_access.isThere() && m_controls.emplace(name, control.widget).second)
                m_keys.push_back(name);
        }
        const bool isLocked =
            std::any_of(control.settingKeys.begin(), control.settingKeys.end(),
                        [this](const QString &key) { return m_session.lockReason(key.toStdString()).has_value(); });
        for (const QString &key : control.settingKeys) {
            if (isLocked)
                m_held.insert(key.toStdString());
        }
    }
}

void olEditedPage::putBackHeld()
{
    const bool isWritten = std::any_of(m_held.begin(), m_held.end(), [this](const std::string &key) {
        const auto filled = m_filled.find(key);
        return filled != m_filled.end() && !isSame(filled->second.onPage, valueOnPage(key));
    });
    if (!isWritten)
        return;
    m_isPuttingBack = true;
    show({});
    m_isPuttingBack = false;
}

/// Whatever a person can edit tells of it by the signal of its user property, but for lists and colours.
void olEditedPage::watch()
{
    const QMetaMethod told = QMetaMethod::fromSignal(&olEditedPage::edited);
    const QList<QWidget *> widgets = withDescendants(*m_entry.page());
    for (QWidget *widget : widgets) {
        const QMetaProperty shown = widget->metaObject()->userProperty();
        if (shown.isValid() && shown.hasNotifySignal())
            connect(widget, shown.notifySignal(), this, told);
        if (auto *color = qobject_cast<QOLColorManipulator *>(widget))
            connect(color, &QOLColorManipulator::colorChanged, this, &olEditedPage::edited);
        auto *view = qobject_cast<QAbstractItemView *>(widget);
        if (const QAbstractItemModel *model = view ? view->model() : nullptr) {
            connect(model, &QAbstractItemModel::dataChanged, this, &olEditedPage::edited);
            connect(model, &QAbstractItemModel::rowsInserted, this, &olEditedPage::edited);
            connect(model, &QAbstractItemModel::rowsRemoved, this, &olEditedPage::edited);
            connect(model, &QAbstractItemModel::layoutChanged, this, &olEditedPage::edited);
            connect(model, &QAbstractItemModel::modelReset, this, &olEditedPage::edited);
        }
    }
}

QWidget *olEditedPage::control(const std::string &key) const
{
    const auto found = m_controls.find(key);
    return found == m_controls.end() ? nullptr : found->second.data();
}

void olEditedPage::fill()
{
    m_entry.updateGUI();
    markClean();
}

void olEditedPage::markClean()
{
    m_filled.clear();
    m_put.clear();
    for (const std::string &key : m_keys) {
        // Made the host's own, as the library that holds it may go first.
        const boost::any value = olValue::adopted(m_entry.value(key));
        // Only what is absent by default has to be asked about.
        const olOfferedDefault *offered = m_entry.findDefault(key);
        const std::string type =
            offered ? olValue::typeName(offered->value) : olSettingDescription::of(m_entry, key).type;
        m_types[key] = type.empty() ? olValue::typeName(value) : type;
        m_filled[key] = {value, valueOnPage(key)};
    }
    m_untagged = untaggedState();
    emit edited();
}

boost::any olEditedPage::valueOnPage(const std::string &key) const
{
    const auto type = m_types.find(key);
    return m_access.value(key, type == m_types.end() ? std::string() : type->second);
}

/// A page that lets nobody read its settings is judged by all that its controls show.
QVariantList olEditedPage::untaggedState() const
{
    QVariantList state;
    if (m_access.isThere())
        return state;
    const QList<QWidget *> widgets = withDescendants(*m_entry.page());
    for (const QWidget *widget : widgets) {
        const QMetaProperty shown = widget->metaObject()->userProperty();
        if (shown.isValid() && shown.isWritable())
            state << shown.read(widget);
    }
    return state;
}

boost::any olEditedPage::value(const std::string &key) const
{
    const boost::any onPage = valueOnPage(key);
    const auto put = m_put.find(key);
    if (put != m_put.end() && olValue::identical(put->second.onPage, onPage))
        return put->second.value;
    const auto filled = m_filled.find(key);
    if (filled != m_filled.end() && olValue::identical(filled->second.onPage, onPage))
        return filled->second.value;
    return onPage;
}

boost::any olEditedPage::valueInForce(const std::string &key) const
{
    const auto filled = m_filled.find(key);
    return filled == m_filled.end() ? m_entry.value(key) : filled->second.value;
}

bool olEditedPage::isChanged() const
{
    for (const std::string &key : m_keys) {
        if (isChanged(key))
            return true;
    }
    return untaggedState() != m_untagged;
}

bool olEditedPage::isChanged(const std::string &key) const
{
    const auto filled = m_filled.find(key);
    if (filled == m_filled.end() || isHeld(key))
        return false;
    return !olValue::identical(filled->second.onPage, valueOnPage(key)) || !isSame(filled->second.value, value(key));
}

bool olEditedPage::differsFromDefault(const std::string &key) const
{
    const boost::any now = value(key);
    return !now.empty() && !isSame(now, m_session.defaultValue(key));
}

void olEditedPage::show(const olSettingValues &values)
{
    olSettingValues shown = values;
    for (const std::string &key : m_keys) {
        if (isChanged(key))
            shown.emplace(key, value(key));
    }
    {
        const olValueOverlay overlay(m_entry, shown);
        m_entry.updateGUI();
    }
    for (const auto &[key, value] : values) {
        // A list that its control shows nothing of was not for it.
        if (hasControl(key) && (isNothing(value) || !isNothing(valueOnPage(key))))
            m_put[key] = {olValue::adopted(value), valueOnPage(key)};
    }
    emit edited();
}

olSettingValues olEditedPage::roundedOnPage() const
{
    olSettingValues rounded;
    for (const auto &[key, put] : m_put) {
        if (!put.value.empty() && isChanged(key) && isSame(value(key), put.value) &&
            !isSame(valueOnPage(key), put.value))
            rounded[key] = put.value;
    }
    return rounded;
}
