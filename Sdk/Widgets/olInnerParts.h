#pragma once

#include <QObject>

#include <vector>

class QWheelEvent;
class QWidget;
class olNumberField;

/// Makes the parts of a composite widget act as one control: they are marked as its inner parts, bear its name for
/// screen readers, and leave the wheel to the page until the control has the focus.
class olInnerParts : public QObject
{
    Q_OBJECT

public:
    /// What tells a part from the others, already translated.
    using Role = QString (*)();

    explicit olInnerParts(QWidget *control);

    /// Marks a widget, so that scripts, search and checks pass over it.
    static void mark(QWidget *part);

    /// Without a role the part is called as the control is.
    void add(QWidget *part, Role role = nullptr);

    /// The field that the wheel steps while the control has the focus. Without one the wheel stays the page's.
    void stepWithWheel(olNumberField *field) { m_stepped = field; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Part {
        QWidget *widget;
        Role role;
    };

    void nameParts();
    void turn(QWheelEvent &event);

    QWidget *m_control;
    std::vector<Part> m_parts;
    olNumberField *m_stepped = nullptr;
    int m_turned = 0;
};
