#pragma once

class QWidget;

/// Widens the labels in front of the fields over all groups of a page, nested ones too, so that the fields stand in
/// one column. Needs the page's final font; every tab of a page is a page of its own in this.
void alignFields(QWidget &page);

/// Hides a field that fills a row of a form layout by itself. The row leaves the layout, which would keep its spacing;
/// the field stays on the page.
void hideRow(QWidget &field);
