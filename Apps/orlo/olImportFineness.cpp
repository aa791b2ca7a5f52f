#include "olImportFineness.h"

#include "olModelExtent.h"

#include "Exchange/olImportJob.h"
#include "Exchange/olModelFormat.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

olImportFineness::olImportFineness(const olImportJob &job, const LockReason &lockReason, QWidget *parent)
    : QWidget(parent),
      m_before(job.options),
      m_prefix(std::string(olModelFormat::ofFile(job.file)->optionsType) + "Options "),
      m_extent(olModelExtent(job.file).value_or(0.0)),
      m_keep(new QCheckBox(tr("&Keep These for Later Imports")))
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    const auto guard = [&](QWidget &box, const std::string &key) {
        const QString reason = lockReason(key);
        box.setEnabled(reason.isEmpty());
        box.setToolTip(reason);
    };
    const auto addNumber = [&](const QString &name, double olImportRecord::*option, const char *key, double lowest,
                               double highest, const QString &unit) {
        auto *box = new QDoubleSpinBox;
        box->setLocale(QLocale::c());
        box->setDecimals(4);
        box->setRange(lowest, highest);
        box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
        box->setSuffix(unit);
        box->setValue(m_before.*option);
        box->setObjectName(QLatin1String(key));
        auto *judgement = new QLabel;
        auto *row = new QHBoxLayout;
        row->addWidget(box);
        row->addWidget(judgement, 1);
        form->addRow(name, row);
        static_cast<QLabel *>(form->labelForField(row))->setBuddy(box);
        m_numbers.push_back({option, m_prefix + key, box, judgement});
        guard(*box, m_prefix + key);
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &olImportFineness::judge);
    };
    const auto addFlag = [&](const QString &name, bool olImportRecord::*option, const char *key) {
        auto *box = new QCheckBox(name);
        box->setChecked(m_before.*option);
        box->setObjectName(QLatin1String(key));
        form->addRow(box);
        m_flags.push_back({option, m_prefix + key, box});
        guard(*box, m_prefix + key);
    };
    addNumber(tr("&Chord Deviation"), &olImportRecord::chordDeviation, "chord deviation", 0.0001, 1000.0,
              QStringLiteral(" mm"));
    addNumber(tr("&Normal Tolerance"), &olImportRecord::normalTolerance, "normal tolerance", 0.1, 90.0,
              QString(QChar(0xb0)));
    addFlag(tr("&Stitching"), &olImportRecord::stitching, "stitching");
    addNumber(tr("S&titching Tolerance"), &olImportRecord::stitchingTolerance, "stitching tolerance", 0.0, 1000.0,
              QStringLiteral(" mm"));
    addFlag(tr("&Merge Geometries"), &olImportRecord::mergeGeometries, "merge geometries");
    addFlag(tr("Remove &Empty Groups"), &olImportRecord::removeEmptyGroups, "remove empty groups");
    addFlag(tr("&Unify Surface Normals"), &olImportRecord::unifySurfaceNormals, "unify surface normals");
    m_keep->setObjectName(QStringLiteral("keep"));
    m_keep->setToolTip(tr("Without this they hold for this import alone."));
    form->addRow(m_keep);
    judge();
}

/// Angles need no model to be judged by.
void olImportFineness::judge() const
{
    for (const Number &number : m_numbers) {
        const bool isLength = number.option != &olImportRecord::normalTolerance;
        number.judgement->setText(isLength && m_extent > 0.0 ? olToleranceInWords(number.box->value(), m_extent)
                                                             : QString());
    }
}

void olImportFineness::changeIn(olImportRecord &options) const
{
    // A field shows four decimals of what may have more.
    for (const Number &number : m_numbers) {
        if (qAbs(number.box->value() - m_before.*number.option) > 0.00005)
            options.*number.option = number.box->value();
    }
    for (const Flag &flag : m_flags) {
        if (flag.box->isChecked() != m_before.*flag.option)
            options.*flag.option = flag.box->isChecked();
    }
}

olImportFineness::Values olImportFineness::kept() const
{
    Values values;
    if (!m_keep->isChecked())
        return values;
    olImportRecord now = m_before;
    changeIn(now);
    for (const Number &number : m_numbers) {
        if (now.*number.option != m_before.*number.option)
            values[number.key] = now.*number.option;
    }
    for (const Flag &flag : m_flags) {
        if (now.*flag.option != m_before.*flag.option)
            values[flag.key] = now.*flag.option;
    }
    return values;
}
