#pragma once

class QWidget;

/// Widens the labels in front of the fields over all groups of a page, nested ones too, so that the fields stand in
/// one column. To be called once the form is set up; every tab of a page is a page of its own in this.
void alignFields(QWidget &page);
