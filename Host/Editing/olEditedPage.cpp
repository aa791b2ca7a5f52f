#include "Editing/olEditedPage.h"

#include "Editing/olPageIndex.h"
#include "Session/olValueOverlay.h"
#include "State/olPreferencesEntry.h"
#include "State/olValue.h"
#include "Widgets/QOLColorManipulator.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QWidget>

namespace
{

constexpr auto accessName = "olSettingAccess";

/// Whether it says nothing: a key that is absent, or a list of nothing.
bool isNothing(const boost::any &value) { return value.empty() || olValue::toJson(value) == "[]"; }

/// Whether the two are one value to a person: what is no number is always itself.
bool isSame(const boost::any &left, const boost::any &right)
{
    if (isNothing(left) || isNothing(right))
        return isNothing(left) && isNothing(right);
    return olValue::equal(left, right) ||
           (olValue::typeName(left) == olValue::typeName(right) && olValue::toJson(left) == olValue::toJson(right));
}

QList<QWidget *> withDescendants(QWidget &page) { return QList<QWidget *>{&page} + page.findChildren<QWidget *>(); }

} // namespace

olEditedPage::olEditedPage(const olPreferencesSession &session, olPreferencesEntry &entry)
    : m_session(session), m_entry(entry), m_access(entry.page()->findChild<QObject *>(QLatin1String(accessName)))
{
    collectControls();
    watch();
}

void olEditedPage::collectControls()
{
    const olPageIndex index(*m_entry.page());
    for (const olPageControl &control : index.controls()) {
        for (const QString &key : control.settingKeys) {
            const std::string name = key.toStdString();
            if (m_access && m_controls.emplace(name, control.widget).second)
                m_keys.push_back(name);
        }
    }
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
        const boost::any standard = m_session.defaultValue(key);
        m_types[key] = olValue::typeName(standard.empty() ? value : standard);
        m_filled[key] = {value, textOnPage(key)};
    }
    m_untagged = untaggedState();
    emit edited();
}

boost::any olEditedPage::valueOnPage(const std::string &key) const
{
    QVariant shown;
    if (m_access) {
        QMetaObject::invokeMethod(m_access, "value", Q_RETURN_ARG(QVariant, shown),
                                  Q_ARG(QString, QString::fromStdString(key)));
    }
    const auto type = m_types.find(key);
    return olValue::fromVariant(type == m_types.end() ? std::string() : type->second, shown);
}

std::string olEditedPage::textOnPage(const std::string &key) const
{
    const boost::any value = valueOnPage(key);
    return isNothing(value) ? std::string() : olValue::toJson(value);
}

/// A page that lets nobody read its settings is judged by all that its controls show.
QVariantList olEditedPage::untaggedState() const
{
    QVariantList state;
    if (m_access)
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
    const std::string onPage = textOnPage(key);
    const auto put = m_put.find(key);
    if (put != m_put.end() && put->second.onPage == onPage)
        return put->second.value;
    const auto filled = m_filled.find(key);
    if (filled != m_filled.end() && filled->second.onPage == onPage)
        return filled->second.value;
    return valueOnPage(key);
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
    if (filled == m_filled.end())
        return false;
    return filled->second.onPage != textOnPage(key) || !isSame(filled->second.value, value(key));
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
            m_put[key] = {olValue::adopted(value), textOnPage(key)};
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
