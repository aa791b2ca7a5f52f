#pragma once

#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The forms of the modules' pages without their modules, in the order of registration.
namespace BareForms
{

std::vector<std::unique_ptr<QWidget>> all();

/// The form of one module, by the module's class.
std::unique_ptr<QWidget> of(const std::string &moduleClass);

/// Sets the form up in a widget of the caller's.
void setUp(const std::string &moduleClass, QWidget &widget);

} // namespace BareForms
