#include "Dialog/olFieldUnits.h"

#include <QAbstractSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace
{

constexpr int gap = 4;

/// The unit then stands there already.
bool isLabelBehind(QWidget &control)
{
    const auto rows = control.parentWidget()->findChildren<QHBoxLayout *>();
    return std::any_of(rows.begin(), rows.end(), [&control](QHBoxLayout *row) {
        QLayoutItem *behind = row->itemAt(row->indexOf(&control) + 1);
        return row->indexOf(&control) >= 0 && behind && qobject_cast<QLabel *>(behind->widget());
    });
}

int widthOf(const QLabel &unit) { return std::max(unit.sizeHint().width(), unit.minimumWidth()); }

QString perCent(double share) { return QStringLiteral("= %1 %").arg(share * 100.0, 0, 'g', 3); }

} // namespace

olFieldUnits::~olFieldUnits()
{
    for (auto unit = m_units.cbegin(); unit != m_units.cend(); ++unit) {
        QLineEdit &field = *unit.key();
        field.removeEventFilter(this);
        field.setTextMargins({});
        if (auto *box = qobject_cast<QAbstractSpinBox *>(field.parentWidget()))
            box->setMinimumWidth(0);
        delete unit.value();
    }
}

void olFieldUnits::show(QWidget &control, const QString &unit)
{
    if (isLabelBehind(control))
        return;
    QList<QLineEdit *> fields = control.findChildren<QLineEdit *>();
    if (auto *field = qobject_cast<QLineEdit *>(&control))
        fields << field;
    for (QLineEdit *field : fields) {
        if (m_units.contains(field))
            continue;
        auto *label = new QLabel(unit, field);
        label->setProperty("olInnerPart", true); // no control of the page
        label->setObjectName(QStringLiteral("unit"));
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setForegroundRole(QPalette::Text);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        // Short units take the same room, so that boxes below each other end alike.
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("mm")));
        label->show();
        m_units.insert(field, label);
        connect(field, &QObject::destroyed, this, [this, field] { m_units.remove(field); });
        field->installEventFilter(this);
        // A spin box asks for no more room than its number needs.
        if (auto *box = qobject_cast<QAbstractSpinBox *>(field->parentWidget()))
            box->setMinimumWidth(box->sizeHint().width() + widthOf(*label) + gap);
        place(*field);
    }
}

void olFieldUnits::showShare(QWidget &control)
{
    show(control, perCent(1.0));
    const QList<QLineEdit *> fields = control.findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        const QPointer<QLabel> label = m_units.value(field);
        // The room for the longest of them, so that fields below each other are alike.
        if (label)
            label->setMinimumWidth(label->sizeHint().width());
        const auto tell = [this, field, label](const QString &text) {
            bool isNumber = false;
            const double share = text.toDouble(&isNumber);
            if (!label)
                return;
            label->setText(isNumber ? perCent(share) : QString());
            place(*field);
        };
        connect(field, &QLineEdit::textChanged, this, tell);
        tell(field->text());
    }
}

bool olFieldUnits::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::ActionAdded:
    case QEvent::ActionRemoved:
        place(static_cast<QLineEdit &>(*watched));
        break;
    default:
        break;
    }
    return false;
}

void olFieldUnits::place(QLineEdit &field) const
{
    QLabel *label = m_units.value(&field);
    // A mark in the field takes its end.
    label->setVisible(field.actions().isEmpty());
    const int width = widthOf(*label) + gap;
    const bool isMirrored = field.layoutDirection() == Qt::RightToLeft;
    const QMargins margins(isMirrored ? width : 0, 0, isMirrored ? 0 : width, 0);
    if (field.textMargins() != margins)
        field.setTextMargins(margins);
    label->setGeometry(isMirrored ? gap : field.width() - width, 0, width - gap, field.height());
}
