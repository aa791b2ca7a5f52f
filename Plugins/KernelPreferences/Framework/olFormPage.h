#pragma once

#include "Framework/olPageWidget.h"

#include <memory>

/// A page that is made from a form. What derives from it declares its destructor, and defines it where the form is
/// known.
template <class Form> class olFormPage : public olPageWidget
{
public:
    [[nodiscard]] const Form &form() const { return *m_form; }

protected:
    olFormPage() : m_form(std::make_unique<Form>()) { m_form->setupUi(this); }

    const std::unique_ptr<Form> m_form;
};
