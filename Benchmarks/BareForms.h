#pragma once

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

/// The forms of the modules' pages without their modules, in the order of registration.
namespace BareForms
{

std::vector<std::unique_ptr<QWidget>> all();

/// The form of one module, by the module's class.
std::unique_ptr<QWidget> of(const std::string &moduleClass);

} // namespace BareForms
