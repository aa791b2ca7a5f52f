#include "Widgets/olNumberField.h"

#include <QDoubleValidator>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyleOptionFrame>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr int significantDigits = 6;
constexpr int anyDecimals = 1000;

/// Refuses a key stroke as soon as no further typing could lead into the range; the toolkit's validator lets any
/// number with few enough digits stand. A decimal comma becomes a point at once.
class NumberValidator : public QDoubleValidator
{
public:
    using QDoubleValidator::QDoubleValidator;

    State validate(QString &text, int &) const override
    {
        if (text.count(QLatin1Char('.')) + text.count(QLatin1Char(',')) == 1)
            text.replace(QLatin1Char(','), QLatin1Char('.'));
        static const QRegularExpression number(
            QStringLiteral("^([+-]?)[0-9]*(?:\\.([0-9]*))?(?<exponent>[eE][+-]?[0-9]*)?$"));
        const QRegularExpressionMatch match = number.match(text);
        if (!match.hasMatch() || match.capturedLength(2) > decimals())
            return Invalid;
        const bool negative = match.captured(1) == QLatin1String("-");
        if (negative && bottom() >= 0.0)
            return Invalid;

        bool readable = false;
        const double value = text.toDouble(&readable);
        if (!readable)
            return Intermediate;
        if (value >= bottom() && value <= top())
            return Acceptable;
        const bool farther = negative ? value < bottom() : value > top();
        const bool exponentMayFollow = match.capturedLength(QStringLiteral("exponent")) > 0;
        return farther && !exponentMayFollow ? Invalid : Intermediate;
    }
};

} // namespace

olNumberField::olNumberField(QWidget *parent) : QLineEdit(parent), m_validator(new NumberValidator(this))
{
    constexpr double unbounded = std::numeric_limits<double>::infinity();
    m_validator->setRange(-unbounded, unbounded, anyDecimals);
    m_validator->setLocale(QLocale::c());
    setValidator(m_validator);
    // A text that the validator rewrites counts as set and not as typed.
    connect(this, &QLineEdit::textEdited, this, [this] { setModified(true); });
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setValue(0.0);
}

void olNumberField::setRange(double lowest, double highest)
{
    m_validator->setRange(lowest, std::max(lowest, highest), m_validator->decimals());
}

double olNumberField::lowest() const { return m_validator->bottom(); }

double olNumberField::highest() const { return m_validator->top(); }

void olNumberField::setDecimals(int decimals)
{
    m_decimals = std::max(decimals, -1);
    m_validator->setDecimals(m_decimals < 0 ? anyDecimals : m_decimals);
    showValue();
}

void olNumberField::setSteps(double single, double page)
{
    m_singleStep = single;
    m_pageStep = page;
}

double olNumberField::fitted(double value) const
{
    if (m_decimals >= 0)
        value = QString::number(value, 'f', m_decimals).toDouble();
    return std::clamp(value, lowest(), highest());
}

void olNumberField::setValue(double value)
{
    // Pages are filled over and over with what they show already. Zeros have signs, and show them.
    const bool isSame = value == m_value && std::signbit(value) == std::signbit(m_value);
    const bool isShown = isSame && !isModified() && !text().isEmpty();
    m_value = value;
    if (!isShown)
        showValue();
}

void olNumberField::showValue() { setText(shown(m_value)); }

double olNumberField::value() const
{
    // Whoever asks while the user still types, a dialog confirmed by its shortcut say, gets what the field shows.
    const bool typed = isModified() && hasAcceptableInput() && text() != shown(m_value);
    return typed ? fitted(text().toDouble()) : m_value;
}

void olNumberField::edit(double value)
{
    const double before = m_value;
    setValue(fitted(value));
    if (m_value != before)
        Q_EMIT edited(m_value);
}

void olNumberField::stepBy(double steps)
{
    edit(withoutNoise(value() + steps * m_singleStep));
    if (hasFocus())
        selectAll();
}

double olNumberField::withoutNoise(double value) { return QString::number(value, 'g', 12).toDouble(); }

QSize olNumberField::sizeHint() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const int text = fontMetrics().horizontalAdvance(QStringLiteral("-0.0000000"));
    const QMargins margins = textMargins(); // for what a host shows beside the number
    const QSize contents(text + margins.left() + margins.right(), fontMetrics().height());
    return {style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, this).width(),
            QLineEdit::sizeHint().height()};
}

QSize olNumberField::minimumSizeHint() const { return sizeHint(); }

void olNumberField::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter)
        commit();
    // Only what was begun is reverted: the next Escape is the dialog's.
    if (event->key() == Qt::Key_Escape && isModified()) {
        setValue(m_value);
        event->accept();
        return;
    }
    if (event->modifiers().testFlag(Qt::ControlModifier) || !stepByKey(event->key()))
        QLineEdit::keyPressEvent(event);
}

void olNumberField::focusOutEvent(QFocusEvent *event)
{
    // The context menu and another window only interrupt the typing.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        commit();
    QLineEdit::focusOutEvent(event);
}

QString olNumberField::shown(double value) const
{
    constexpr double longest = 1e15;
    const bool fixed = m_decimals >= 0 && std::fabs(value) < longest;
    return fixed ? QString::number(value, 'f', m_decimals) : QString::number(value, 'g', significantDigits);
}

void olNumberField::commit()
{
    if (isModified())
        edit(value());
}

bool olNumberField::stepByKey(int key)
{
    if (isReadOnly())
        return false;
    const double page = m_singleStep > 0.0 ? m_pageStep / m_singleStep : 0.0;
    switch (key) {
    case Qt::Key_Up:
        stepBy(1.0);
        return true;
    case Qt::Key_Down:
        stepBy(-1.0);
        return true;
    case Qt::Key_PageUp:
        stepBy(page);
        return true;
    case Qt::Key_PageDown:
        stepBy(-page);
        return true;
    default:
        return false;
    }
}
