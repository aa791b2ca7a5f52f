#pragma once

#include "Utilities/olExport.h"

#include <QWidget>

class QCheckBox;
class QFormLayout;
class QLabel;
class QSlider;
class olNumberField;

/// How finely surfaces are tessellated on import, and how they are stitched. Every value is its own control, which
/// returns exactly what was set until the user edits it.
class ORLO_SDK_EXPORT olTesselationSettings : public QWidget
{
    Q_OBJECT

public:
    /// For enableGroups(): the bits of what goes together.
    enum Group : unsigned { TessellationGroup = 1, StitchingGroup = 2, AllGroups = TessellationGroup | StitchingGroup };

    enum class Control {
        Tessellation,
        Quality,
        ChordDeviation,
        NormalTolerance,
        MaxChordLength,
        Stitching,
        StitchingTolerance
    };

    explicit olTesselationSettings(QWidget *parent = nullptr);

    /// Makes the controls act on each other: the quality slider on the three tolerances and back, the check boxes on
    /// what they switch. A second call does nothing.
    void setConnections();

    /// Takes what names the ends of the quality slider from the form, and puts it there.
    void setQualityEnds(QWidget &lowest, QWidget &highest);

    /// Enables the groups whose bits are set and disables the others; further bits mean nothing. At first all are
    /// enabled.
    void enableGroups(unsigned groups);

    /// Moves the slider to the preset nearest to the tolerances, and changes none of them.
    void updateQualityPreset();

    /// Largest distance between a surface and its triangles, in millimetres.
    void setChordDeviation(double millimetres);

    /// Largest angle between the normals at the ends of an edge, in degrees.
    void setNormalTolerance(double degrees);

    /// Longest edge of a triangle, in millimetres.
    void setMaxChordLength(double millimetres);

    void setStitchingEnabled(bool enabled);

    /// Widest gap between two surfaces that is closed, in millimetres.
    void setStitchingTolerance(double millimetres);

    /// The widget of one value, to read, mark or explain it: a check box for what is on or off, a slider for the
    /// quality, and a field for a number, which is its property "value".
    [[nodiscard]] QWidget *control(Control which) const;

private:
    struct Field {
        QLabel *label = nullptr;
        olNumberField *number = nullptr;
        QLabel *unit = nullptr;

        void setEnabled(bool enabled) const;
    };

    void addQuality(QFormLayout &rows);
    [[nodiscard]] Field addField(QFormLayout &rows, const char *objectName, const QString &name, const QString &unit);

    void applyQualityPreset(int preset);
    void updateEnabled();
    [[nodiscard]] double distanceTo(int preset) const;

    QCheckBox *m_tessellation;
    QLabel *m_qualityLabel = nullptr;
    QWidget *m_qualityRow = nullptr;
    QSlider *m_quality = nullptr;
    Field m_chordDeviation;
    Field m_normalTolerance;
    Field m_maxChordLength;
    QCheckBox *m_stitching;
    Field m_stitchingTolerance;
    unsigned m_groups = AllGroups;
};
