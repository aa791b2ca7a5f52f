#pragma once

#include <QTreeWidgetItem>

/// One tolerance in the list of tessellation qualities. It keeps the number that it was given until the user types
/// another, and sorts by it.
class olTesselationListViewItem : public QTreeWidgetItem
{
public:
    explicit olTesselationListViewItem(float tolerance);

    [[nodiscard]] float tolerance() const { return m_tolerance; }

    /// Takes the text as the new tolerance. False, with the tolerance untouched, for what is not above 0.
    [[nodiscard]] bool takeText();

    /// Puts the tolerance back into the text.
    void showTolerance();

    bool operator<(const QTreeWidgetItem &other) const override;

private:
    float m_tolerance;
};
