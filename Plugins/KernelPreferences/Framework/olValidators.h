#pragma once

class QLineEdit;

/// Lets a field take any number, in the C locale: what can be typed is what is read.
void acceptNumbers(QLineEdit *field);

/// The same from a lowest number on.
void acceptNumbersFrom(QLineEdit *field, double lowest);
