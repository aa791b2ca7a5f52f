#include "Widgets/olTesselationSettings.h"

#include "Widgets/olNumberField.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSlider>

#include <array>
#include <cmath>

namespace
{

struct Preset {
    double chordDeviation;
    double normalTolerance;
    double maxChordLength;
};

// From the lowest quality to the highest; the middle one is what an import does by default.
constexpr std::array<Preset, 5> presets{{
    {0.75, 30.0, 1000.0},
    {0.25, 20.0, 500.0},
    {0.075, 10.0, 200.0},
    {0.025, 5.0, 100.0},
    {0.0075, 2.5, 50.0},
}};

constexpr int defaultPreset = 2;
constexpr double smallestLength = 0.0001;

/// How far apart two lengths or angles are where their proportion counts. Squared, so that a single value far from a
/// preset is not outvoted by two others that are on it.
double distance(double value, double preset)
{
    constexpr double farthest = 100.0;
    const double steps = value > 0.0 ? std::log(value / preset) : farthest;
    return steps * steps;
}

} // namespace

olTesselationSettings::olTesselationSettings(QWidget *parent) : QWidget(parent)
{
    auto *rows = new QFormLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);

    // Made from the top down, which is also the order of the Tab key.
    m_tessellation = new QCheckBox(tr("T&essellation"), this);
    rows->addRow(m_tessellation);
    addQuality(*rows);
    m_chordDeviation = addField(*rows, "chordDeviation", tr("Chord &Deviation"), tr("mm"));
    m_normalTolerance = addField(*rows, "normalTolerance", tr("&Normal Tolerance"), tr("\302\260"));
    m_maxChordLength = addField(*rows, "maxChordLength", tr("Ma&x Chord Length"), tr("mm"));
    m_stitching = new QCheckBox(tr("&Stitching"), this);
    rows->addRow(m_stitching);
    m_stitchingTolerance = addField(*rows, "stitchingTolerance", tr("St&itching Tolerance"), tr("mm"));

    m_chordDeviation.number->setRange(smallestLength, 1000.0);
    m_chordDeviation.number->setSteps(0.005, 0.05);
    m_normalTolerance.number->setRange(0.1, 90.0);
    m_normalTolerance.number->setSteps(0.5, 5.0);
    m_maxChordLength.number->setRange(smallestLength, 1000000.0);
    m_maxChordLength.number->setSteps(10.0, 100.0);
    m_stitchingTolerance.number->setRange(0.0, 1000.0);
    m_stitchingTolerance.number->setSteps(0.01, 0.1);

    m_tessellation->setChecked(true);
    m_stitching->setChecked(true);
    applyQualityPreset(defaultPreset);
    m_stitchingTolerance.number->setValue(0.1);
    updateQualityPreset();
}

void olTesselationSettings::setConnections()
{
    constexpr auto once = Qt::UniqueConnection;
    connect(m_quality, &QSlider::valueChanged, this, &olTesselationSettings::applyQualityPreset, once);
    for (const Field &field : {m_chordDeviation, m_normalTolerance, m_maxChordLength}) {
        // Typing tells of each letter, the arrow keys of each step.
        connect(field.number, &QLineEdit::textEdited, this, &olTesselationSettings::updateQualityPreset, once);
        connect(field.number, &olNumberField::edited, this, &olTesselationSettings::updateQualityPreset, once);
    }
    connect(m_tessellation, &QCheckBox::toggled, this, &olTesselationSettings::updateEnabled, once);
    connect(m_stitching, &QCheckBox::toggled, this, &olTesselationSettings::updateEnabled, once);
    updateEnabled();
}

void olTesselationSettings::setQualityEnds(QWidget &lowest, QWidget &highest)
{
    auto *row = static_cast<QHBoxLayout *>(m_qualityRow->layout());
    row->insertWidget(0, &lowest);
    row->addWidget(&highest);
}

void olTesselationSettings::enableGroups(unsigned groups)
{
    m_groups = groups;
    updateEnabled();
}

void olTesselationSettings::updateQualityPreset()
{
    int nearest = 0;
    double shortest = distanceTo(nearest);
    for (int preset = 1; preset < int(presets.size()); ++preset) {
        const double distance = distanceTo(preset);
        if (distance < shortest) {
            nearest = preset;
            shortest = distance;
        }
    }
    const QSignalBlocker keepsTolerances(m_quality);
    m_quality->setValue(nearest);
}

void olTesselationSettings::setChordDeviation(double millimetres) { m_chordDeviation.number->setValue(millimetres); }

void olTesselationSettings::setNormalTolerance(double degrees) { m_normalTolerance.number->setValue(degrees); }

void olTesselationSettings::setMaxChordLength(double millimetres) { m_maxChordLength.number->setValue(millimetres); }

void olTesselationSettings::setStitchingEnabled(bool enabled) { m_stitching->setChecked(enabled); }

void olTesselationSettings::setStitchingTolerance(double millimetres)
{
    m_stitchingTolerance.number->setValue(millimetres);
}

QWidget *olTesselationSettings::control(Control which) const
{
    switch (which) {
    case Control::Tessellation:
        return m_tessellation;
    case Control::Quality:
        return m_quality;
    case Control::ChordDeviation:
        return m_chordDeviation.number;
    case Control::NormalTolerance:
        return m_normalTolerance.number;
    case Control::MaxChordLength:
        return m_maxChordLength.number;
    case Control::Stitching:
        return m_stitching;
    case Control::StitchingTolerance:
        return m_stitchingTolerance.number;
    }
    return nullptr;
}

void olTesselationSettings::Field::setEnabled(bool enabled) const
{
    for (QWidget *part : {static_cast<QWidget *>(label), static_cast<QWidget *>(number), static_cast<QWidget *>(unit)})
        part->setEnabled(enabled);
}

void olTesselationSettings::addQuality(QFormLayout &rows)
{
    m_qualityLabel = new QLabel(tr("&Quality"), this);
    m_qualityRow = new QWidget(this);
    m_quality = new QSlider(Qt::Horizontal, m_qualityRow);
    m_quality->setRange(0, int(presets.size()) - 1);
    m_quality->setPageStep(1);
    m_quality->setTickPosition(QSlider::TicksBothSides);
    m_quality->setToolTip(tr("Sets chord deviation, normal tolerance and max chord length together."));
    m_quality->setAccessibleName(tr("Quality"));
    m_qualityLabel->setBuddy(m_quality);
    // Where one of them may not be changed, this may not be used.
    m_quality->setProperty("olCompanionOf",
                           QStringList{QStringLiteral("chordDeviation"), QStringLiteral("normalTolerance"),
                                       QStringLiteral("maxChordLength")});

    auto *row = new QHBoxLayout(m_qualityRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_quality, 1);
    rows.addRow(m_qualityLabel, m_qualityRow);
}

olTesselationSettings::Field olTesselationSettings::addField(QFormLayout &rows, const char *objectName,
                                                             const QString &name, const QString &unit)
{
    const Field field{new QLabel(name, this), new olNumberField(this), new QLabel(unit, this)};
    field.label->setBuddy(field.number);
    field.number->setObjectName(QLatin1String(objectName));
    field.number->setAccessibleName(QString(name).remove(QRegularExpression(QStringLiteral("\\(&\\w\\)|&"))));

    auto *row = new QHBoxLayout;
    row->addWidget(field.number);
    row->addWidget(field.unit);
    row->addStretch(1);
    rows.addRow(field.label, row);
    return field;
}

void olTesselationSettings::applyQualityPreset(int preset)
{
    const Preset &values = presets.at(std::size_t(preset));
    setChordDeviation(values.chordDeviation);
    setNormalTolerance(values.normalTolerance);
    setMaxChordLength(values.maxChordLength);
}

void olTesselationSettings::updateEnabled()
{
    const bool tessellation = (m_groups & TessellationGroup) != 0;
    const bool tolerances = tessellation && m_tessellation->isChecked();
    m_tessellation->setEnabled(tessellation);
    m_qualityLabel->setEnabled(tolerances);
    m_qualityRow->setEnabled(tolerances);
    for (const Field &field : {m_chordDeviation, m_normalTolerance, m_maxChordLength})
        field.setEnabled(tolerances);

    const bool stitching = (m_groups & StitchingGroup) != 0;
    m_stitching->setEnabled(stitching);
    m_stitchingTolerance.setEnabled(stitching && m_stitching->isChecked());
}

double olTesselationSettings::distanceTo(int preset) const
{
    const Preset &values = presets.at(std::size_t(preset));
    return distance(m_chordDeviation.number->value(), values.chordDeviation) +
           distance(m_normalTolerance.number->value(), values.normalTolerance) +
           distance(m_maxChordLength.number->value(), values.maxChordLength);
}
