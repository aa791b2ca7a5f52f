#pragma once

#include <QByteArray>
#include <QByteArrayList>

class QWidget;

/// What a person sees of a page, said in words.
namespace PageText
{

/// Every widget of the page in the order of the form, one a line and indented by what it lies in: its class, its texts
/// and all else that the form or the page gave it. What host widgets are made of is left out.
QByteArrayList form(QWidget &page);

/// What the widget holds at the moment; empty for what holds nothing.
QByteArray state(const QWidget &widget);

/// What it is called on its page.
QByteArray name(const QWidget &page, const QWidget &widget);

/// Of the lists made by form(): what the second has and lacks.
QByteArrayList difference(const QByteArrayList &first, const QByteArrayList &second);

} // namespace PageText
