#pragma once

#include <QLineEdit>

class QDoubleValidator;

/// A line that holds a number exactly: what was set comes back untouched until somebody edits it. Typed numbers are
/// those of the C locale, whatever the user's, so that what can be typed is what is read; a decimal comma becomes a
/// point as it is typed.
class olNumberField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    explicit olNumberField(QWidget *parent = nullptr);

    /// What can be typed and stepped to; either bound may be infinite. A highest below the lowest counts as the lowest.
    void setRange(double lowest, double highest);
    [[nodiscard]] double lowest() const;
    [[nodiscard]] double highest() const;

    /// Decimals that fitted() rounds to; -1, the default, rounds nothing.
    void setDecimals(int decimals);
    [[nodiscard]] int decimals() const { return m_decimals; }

    /// What the arrow keys and the page keys add or take away.
    void setSteps(double single, double page);
    [[nodiscard]] double singleStep() const { return m_singleStep; }
    [[nodiscard]] double pageStep() const { return m_pageStep; }

    /// The number rounded where decimals are set, and brought into the range.
    [[nodiscard]] double fitted(double value) const;

    /// Holds and shows a number as it is, beyond the range too. Drops what is being typed and signals nothing.
    void setValue(double value);

    /// The number held, or the one being typed as soon as it is acceptable.
    [[nodiscard]] double value() const;

    /// The number held, whatever is being typed.
    [[nodiscard]] double committed() const { return m_value; }

    /// Takes a number as if the user had typed it.
    void edit(double value);

    /// Goes that many single steps up, or down where negative, as if by key.
    void stepBy(double steps);

    /// Takes the noise off a sum, so that ten steps of 0.1 make 1.
    [[nodiscard]] static double withoutNoise(double value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user changed the number.
    void edited(double value);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] QString shown(double value) const;
    void showValue();
    void commit();
    bool stepByKey(int key);

    QDoubleValidator *m_validator;
    double m_value = 0.0;
    double m_singleStep = 1.0;
    double m_pageStep = 10.0;
    int m_decimals = -1;
};
