#include "olImportFineness.h"

#include "olModelExtent.h"

#include "Exchange/olImportJob.h"
#include "Exchange/olModelFormat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace
{

/// What of a kind is imported: the items of its box.
enum Wanted { none, visible, all };

Wanted wantedOf(bool isWanted, bool isInvisibleWanted)
{
    if (!isWanted)
        return none;
    return isInvisibleWanted ? all : visible;
}

} // namespace

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
    const auto addKind = [&](const QString &name, bool olImportRecord::*option, bool olImportRecord::*invisible,
                             const char *kind) {
        auto *box = new QComboBox;
        box->addItems({tr("Import none"), tr("Import visible"), tr("Import all")});
        box->setCurrentIndex(wantedOf(m_before.*option, m_before.*invisible));
        box->setObjectName(QLatin1String(kind));
        form->addRow(name, box);
        const std::string import = m_prefix + "import ";
        m_kinds.push_back({option, invisible, import + kind, import + "invisible " + kind, box});
        guard(*box, m_kinds.back().key);
        if (box->isEnabled())
            guard(*box, m_kinds.back().invisibleKey);
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
    addKind(tr("Sur&faces"), &olImportRecord::importSurfaces, &olImportRecord::importInvisibleSurfaces, "surfaces");
    addKind(tr("Curves and Polygon &Lines"), &olImportRecord::importCurves, &olImportRecord::importInvisibleCurves,
            "curves");
    addKind(tr("Mes&hes"), &olImportRecord::importMeshes, &olImportRecord::importInvisibleMeshes, "meshes");
    addNumber(tr("&Chord Deviation"), &olImportRecord::chordDeviation, "chord deviation", 0.0001, 1000.0,
              QStringLiteral(" mm"));
    addNumber(tr("&Normal Tolerance"), &olImportRecord::normalTolerance, "normal tolerance", 0.1, 90.0,
              QString(QChar(0xb0)));
    addFlag(tr("&Stitching"), &olImportRecord::stitching, "stitching");
    addNumber(tr("S&titching Tolerance"), &olImportRecord::stitchingTolerance, "stitching tolerance", 0.0, 1000.0,
              QStringLiteral(" mm"));
    addFlag(tr("&Merge Geometries"), &olImportRecord::mergeGeometries, "merge geometries");
    addFlag(tr("Remove &Empty Groups"), &olImportRecord::removeEmptyGroups, "remove empty groups");
    addFlag(tr("Unif&y Surface Normals"), &olImportRecord::unifySurfaceNormals, "unify surface normals");
    m_keep->setObjectName(QStringLiteral("keep"));
    m_keep->setToolTip(tr("Without this they hold for this import alone."));
    form->addRow(m_keep);
    int widest = 0;
    for (const Number &number : m_numbers)
        widest = qMax(widest, number.box->sizeHint().width());
    for (const Number &number : m_numbers)
        number.box->setMinimumWidth(widest);
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
    for (const Kind &kind : m_kinds) {
        const int wanted = kind.box->currentIndex();
        if (wanted == wantedOf(m_before.*kind.option, m_before.*kind.invisible))
            continue;
        options.*kind.option = wanted != none;
        // Of what is not imported it does not count whether the invisible is.
        if (wanted != none)
            options.*kind.invisible = wanted == all;
    }
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
    for (const Kind &kind : m_kinds) {
        if (now.*kind.option != m_before.*kind.option)
            values[kind.key] = now.*kind.option;
        if (now.*kind.invisible != m_before.*kind.invisible)
            values[kind.invisibleKey] = now.*kind.invisible;
    }
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
