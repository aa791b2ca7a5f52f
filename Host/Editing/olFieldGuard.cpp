#include "Editing/olFieldGuard.h"

#include "Session/olSettingDescription.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QDoubleValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <map>
#include <utility>

namespace
{

constexpr auto keysProperty = "olSettingKeys";

/// How long after a refused key the rest of the same number may follow.
constexpr int sameNumber = 1000;

QAbstractSpinBox *spinBoxOf(const QLineEdit &field) { return qobject_cast<QAbstractSpinBox *>(field.parentWidget()); }

bool isNumberField(const QLineEdit &field)
{
    return spinBoxOf(field) || qobject_cast<const QDoubleValidator *>(field.validator());
}

/// A field of the host's own that holds a number puts itself right; so does a spin box.
bool restoresItself(const QLineEdit &field) { return field.inherits("olNumberField") || spinBoxOf(field); }

/// Signs between digits, which mean one thing in one country and another in the next.
bool isSeparator(QChar letter)
{
    return !letter.isLetterOrNumber() && letter != QLatin1Char('-') && letter != QLatin1Char('+');
}

/// Whether the field could not go on with what it shows once this is typed. A spin box of whole numbers would pass over
/// the sign that groups digits and read 1,5 as 15.
bool isRefused(const QLineEdit &field, const QString &typed)
{
    if (spinBoxOf(field))
        return true;
    QString text = field.text();
    int position = field.hasSelectedText() ? field.selectionStart() : field.cursorPosition();
    text.replace(position, field.selectedText().size(), typed);
    position += typed.size();
    return field.validator()->validate(text, position) == QValidator::Invalid;
}

bool isLeaving(const QFocusEvent &event)
{
    // The context menu and another window only interrupt the typing.
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

} // namespace

olFieldGuard::olFieldGuard(const olPreferencesEntry &entry) : m_entry(entry)
{
    const auto fields = entry.page()->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        if (isNumberField(*field))
            watch(*field);
    }
    olHostState::the().addObserver(*this);
    showRefusals();
}

olFieldGuard::~olFieldGuard()
{
    olHostState::the().removeObserver(*this);
    for (const Field &field : qAsConst(m_fields))
        delete field.mark;
}

void olFieldGuard::stateChanged(const olHostValueBase &value)
{
    if (&value == &olHostState::the().refusals)
        showRefusals();
}

void olFieldGuard::showRefusals()
{
    const QList<QLineEdit *> fields = m_fields.keys();
    for (QLineEdit *field : fields)
        showRefusal(*field);
}

void olFieldGuard::showRefusal(QLineEdit &field)
{
    Field &known = m_fields[&field];
    const std::map<std::string, QString> &refusals = olHostState::the().refusals;
    const auto refusal = refusals.find(keyOf(field));
    const bool isRefused = refusal != refusals.end();
    if (isRefused)
        mark(field, refusal->second);
    else if (known.isOfHost)
        clearMark(field);
    known.isOfHost = isRefused;
    known.refusedText = isRefused ? field.text() : QString();
}

void olFieldGuard::watch(QLineEdit &field)
{
    m_fields[&field].before = field.text();
    connect(&field, &QObject::destroyed, this, [this, gone = &field] { m_fields.remove(gone); });
    connect(&field, &QLineEdit::inputRejected, this, [this, &field] { markExpectation(field); });
    connect(&field, &QLineEdit::textEdited, this, [this, &field](const QString &text) { edited(field, text); });
    // A spin box takes the keys and hands them on; what it shows by itself it does not tell.
    if (QWidget *box = spinBoxOf(field))
        return box->installEventFilter(this);
    field.installEventFilter(this);
    connect(&field, &QLineEdit::textChanged, this, [this, &field](const QString &text) {
        Field &known = m_fields[&field];
        known.isTyped = std::exchange(known.isTold, false);
        if (!known.isTyped)
            known.before = text;
        if (!text.isEmpty() && text == known.refusedText)
            showRefusal(field);
    });
}

bool olFieldGuard::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field)
        field = watched->findChild<QLineEdit *>();
    if (!field || !m_fields.contains(field))
        return false;
    if (event->type() == QEvent::KeyPress)
        return takesKey(*field, static_cast<QKeyEvent *>(event)->text());
    if (event->type() == QEvent::FocusIn && spinBoxOf(*field))
        m_fields[field].before = field->text();
    if (event->type() == QEvent::FocusOut && isLeaving(*static_cast<QFocusEvent *>(event)))
        restore(*field);
    return false;
}

/// Whether the key goes no further. The rest of a number whose beginning was refused must not become a number of its
/// own.
bool olFieldGuard::takesKey(QLineEdit &field, const QString &typed)
{
    Field &known = m_fields[&field];
    const bool isPrinted = !typed.isEmpty() && typed.at(0).isPrint();
    if (isPrinted && known.refused.isValid() && known.refused.elapsed() <= sameNumber) {
        known.refused.start();
        return true;
    }
    known.refused.invalidate();
    if (!isPrinted || !isSeparator(typed.at(0)) || !isRefused(field, typed))
        return false;
    refuse(field);
    return true;
}

void olFieldGuard::edited(QLineEdit &field, const QString &text)
{
    m_fields[&field].isTold = true;
    if (spinBoxOf(field) && std::any_of(text.begin(), text.end(), isSeparator))
        refuse(field);
    else
        clearMark(field);
}

void olFieldGuard::refuse(QLineEdit &field)
{
    Field &known = m_fields[&field];
    field.setText(known.before);
    if (QAbstractSpinBox *box = spinBoxOf(field))
        box->interpretText();
    field.selectAll();
    known.refused.start();
    markExpectation(field);
}

void olFieldGuard::restore(QLineEdit &field)
{
    m_fields[&field].refused.invalidate();
    if (m_fields[&field].isTyped && field.hasAcceptableInput())
        m_fields[&field].before = field.text();
    if (!m_fields[&field].isTyped || field.hasAcceptableInput())
        return;
    markExpectation(field);
    if (!restoresItself(field))
        field.setText(m_fields[&field].before);
}

void olFieldGuard::restoreUnfinished()
{
    const QList<QLineEdit *> fields = m_fields.keys();
    for (QLineEdit *field : fields)
        restore(*field);
}

void olFieldGuard::markExpectation(QLineEdit &field)
{
    mark(field, tr("Only %1 can be entered here.").arg(expectation(field)));
}

void olFieldGuard::mark(QLineEdit &field, const QString &sentence)
{
    Field &known = m_fields[&field];
    if (!known.mark) {
        const QIcon icon = field.style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, &field);
        known.mark = field.addAction(icon, QLineEdit::TrailingPosition); // owned by the field
        known.mark->setObjectName(QStringLiteral("refused"));
    }
    known.mark->setToolTip(sentence);
    known.isOfHost = false;
    if (field.isVisible())
        QToolTip::showText(field.mapToGlobal(field.rect().bottomLeft()), sentence, &field);
}

void olFieldGuard::clearMark(QLineEdit &field)
{
    delete m_fields[&field].mark;
    QToolTip::hideText();
}

/// Of the setting that the field, or the control that it is part of, stands for; empty where it stands for none.
std::string olFieldGuard::keyOf(const QLineEdit &field) const
{
    for (const QWidget *control = &field; control && control != m_entry.page(); control = control->parentWidget()) {
        const QStringList keys = control->property(keysProperty).toStringList();
        if (!keys.isEmpty())
            return keys.first().toStdString();
    }
    return {};
}

QString olFieldGuard::expectation(const QLineEdit &field) const
{
    const std::string key = keyOf(field);
    return key.empty() ? tr("a number") : olSettingDescription::of(m_entry, key).expectation();
}
