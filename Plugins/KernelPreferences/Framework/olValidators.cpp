#include "Framework/olValidators.h"

#include <QDoubleValidator>
#include <QLineEdit>

namespace
{

QDoubleValidator *addNumberValidator(QLineEdit *field)
{
    auto *validator = new QDoubleValidator(field); // owned by the field
    validator->setLocale(QLocale::c());
    field->setValidator(validator);
    return validator;
}

} // namespace

void acceptNumbers(QLineEdit *field) { addNumberValidator(field); }

void acceptNumbersFrom(QLineEdit *field, double lowest) { addNumberValidator(field)->setBottom(lowest); }
