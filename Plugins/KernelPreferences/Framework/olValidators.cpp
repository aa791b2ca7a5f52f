#include "Framework/olValidators.h"

#include <QDoubleValidator>
#include <QLineEdit>

namespace
{

QDoubleValidator *addNumberValidator(QLineEdit *field)
{
    auto *validator = new QDoubleValidator(field); // owned by the field
    // The reader takes no group separators, so none can be typed.
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    validator->setLocale(locale);
    field->setValidator(validator);
    return validator;
}

} // namespace

void acceptNumbers(QLineEdit *field) { addNumberValidator(field); }

void acceptNumbersFrom(QLineEdit *field, double lowest) { addNumberValidator(field)->setBottom(lowest); }
