#pragma once

#include <QIcon>

#include <string>

/// Icons of the pages, in the colours of the application as they are when drawn.
namespace olPageIcons
{

/// By the module's class; a module that is not known has the icon of a file, as the formats have.
[[nodiscard]] QIcon of(const std::string &moduleClass);

/// Of a category without a page of its own.
[[nodiscard]] QIcon ofCategory();

} // namespace olPageIcons
