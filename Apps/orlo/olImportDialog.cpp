#include "olImportDialog.h"

#include "olImportSummary.h"

#include "Dialog/olWindowPlace.h"
#include "Exchange/olModelFormat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace
{

constexpr int mostFilesNamed = 5;

QString namesOf(const std::vector<olImportJob> &jobs)
{
    QStringList names;
    for (const olImportJob &job : jobs)
        names << QFileInfo(job.file).fileName();
    if (names.size() <= mostFilesNamed)
        return names.join(QLatin1Char('\n'));
    const int others = names.size() - mostFilesNamed + 1;
    return names.mid(0, mostFilesNamed - 1).join(QLatin1Char('\n')) + QLatin1Char('\n') +
           olImportDialog::tr("and %n more", nullptr, others);
}

bool leavesUnitOpen(const olImportJob &job)
{
    const olModelFormat *format = olModelFormat::ofFile(job.file);
    return format && !format->holds(olModelFormat::UnitAndUp);
}

/// Files of one format go by the same options.
QString summariesOf(const std::vector<olImportJob> &jobs)
{
    QStringList summaries;
    for (const olImportJob &job : jobs)
        summaries << olImportSummary(job);
    summaries.removeDuplicates();
    return summaries.join(QStringLiteral("<br>"));
}

} // namespace

olImportDialog::olImportDialog(const std::vector<olImportJob> &jobs, bool hasScene, QWidget *parent,
                               const olImportFineness::LockReason &lockReason)
    : QDialog(parent),
      m_question(new QWidget),
      m_options(new QLabel(summariesOf(jobs))),
      m_center(new QCheckBox(tr("Center to Origin"))),
      m_ground(new QCheckBox(tr("Place Objects on the Ground"))),
      m_unit(new QComboBox),
      m_up(new QComboBox),
      m_replace(new QRadioButton(tr("&Replace the scene"))),
      m_add(new QRadioButton(tr("&Add to the scene"))),
      m_progress(new QProgressBar),
      m_verdict(new QWidget),
      m_sign(new QLabel),
      m_headline(new QLabel),
      m_outcome(new QPlainTextEdit),
      m_buttons(new QDialogButtonBox)
{
    setWindowTitle(tr("Import"));
    auto *names = new QLabel(namesOf(jobs));
    names->setTextFormat(Qt::PlainText);
    QFont bold = names->font();
    bold.setBold(true);
    names->setFont(bold);
    m_options->setTextFormat(Qt::RichText);
    m_options->setToolTip(tr("Edit > Preferences > FileIO decides over these, format by format."));
    m_center->setChecked(jobs.front().centerInOrigin);
    m_ground->setChecked(jobs.front().putOnGround);
    m_progress->setRange(0, 100);
    m_progress->setAccessibleName(tr("Progress of the import"));
    m_outcome->setReadOnly(true);
    m_outcome->setAccessibleName(tr("Outcome of the import"));
    addChoices(std::any_of(jobs.begin(), jobs.end(), leavesUnitOpen), hasScene);
    auto *verdict = new QHBoxLayout(m_verdict);
    verdict->setContentsMargins(0, 0, 0, 0);
    verdict->addWidget(m_sign);
    verdict->addWidget(m_headline, 1);
    m_headline->setFont(bold);

    const auto hasSurfaces = [](const olImportJob &job) {
        const olModelFormat *format = olModelFormat::ofFile(job.file);
        return format && format->holds(olModelFormat::Surfaces);
    };
    const auto fine = std::find_if(jobs.begin(), jobs.end(), hasSurfaces);
    auto *layout = new QVBoxLayout(this);
    if (lockReason && fine != jobs.end()) {
        m_finenessFormat = QLatin1String(olModelFormat::ofFile(fine->file)->optionsType);
        m_fineness = new olImportFineness(*fine, lockReason);
        static_cast<QFormLayout *>(m_question->layout())->insertRow(1, m_fineness);
    }
    for (QWidget *widget : std::initializer_list<QWidget *>{names, m_question, m_progress, m_verdict, m_outcome})
        layout->addWidget(widget);
    layout->addWidget(m_buttons);
    setMinimumWidth(olWindowPlace::letterWidth(fontMetrics()) * 60);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] {
        showReading();
        emit confirmed();
    });
    connect(m_buttons, &QDialogButtonBox::rejected, this, &olImportDialog::reject);
    setStage(Stage::Asking);
}

olImportJob olImportDialog::asked(olImportJob job) const
{
    job.centerInOrigin = m_center->isChecked();
    job.putOnGround = m_ground->isChecked();
    const olModelFormat *format = olModelFormat::ofFile(job.file);
    if (m_fineness && format && m_finenessFormat == QLatin1String(format->optionsType))
        m_fineness->changeIn(job.options);
    return job;
}

void olImportDialog::addChoices(bool isUnitOpen, bool hasScene)
{
    const olImportChoice last = olImportChoice::remembered();
    for (const auto &[text, millimetres] :
         {std::make_pair(tr("Millimetres"), 1.0), std::make_pair(tr("Centimetres"), 10.0),
          std::make_pair(tr("Metres"), 1000.0), std::make_pair(tr("Inches"), 25.4), std::make_pair(tr("Feet"), 304.8)})
        m_unit->addItem(text, millimetres);
    m_unit->setCurrentIndex(std::max(m_unit->findData(last.unit), 0));
    m_up->addItem(tr("z is up"), false);
    m_up->addItem(tr("y is up"), true);
    m_up->setCurrentIndex(last.isYUp ? 1 : 0);
    const QString hint = tr("The file does not say it.");
    m_unit->setToolTip(hint);
    m_up->setToolTip(hint);
    (last.addsToScene ? m_add : m_replace)->setChecked(true);

    auto *rows = new QFormLayout(m_question);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addRow(m_options);
    if (isUnitOpen) {
        rows->addRow(tr("&Unit of length:"), m_unit);
        rows->addRow(tr("U&p axis:"), m_up);
    } else {
        m_unit->setParent(m_question);
        m_up->setParent(m_question);
        m_unit->hide();
        m_up->hide();
    }
    rows->addRow(m_center);
    rows->addRow(m_ground);
    rows->addRow(m_replace);
    rows->addRow(m_add);
    m_replace->setVisible(hasScene);
    m_add->setVisible(hasScene);
}

olImportFineness::Values olImportDialog::kept() const
{
    return m_fineness ? m_fineness->kept() : olImportFineness::Values();
}

olImportChoice olImportDialog::choice() const
{
    return {m_add->isChecked(), m_unit->currentData().toDouble(), m_up->currentData().toBool()};
}

void olImportDialog::showReading() { setStage(Stage::Reading); }

void olImportDialog::setPercent(int percent) { m_progress->setValue(percent); }

void olImportDialog::showOutcome(Success success, const QString &text)
{
    const bool isFailed = success == Success::Failed;
    const auto sign = isFailed                          ? QStyle::SP_MessageBoxCritical
                      : success == Success::WithRemarks ? QStyle::SP_MessageBoxWarning
                                                        : QStyle::SP_DialogApplyButton;
    const int side = style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    m_sign->setPixmap(style()->standardIcon(sign, nullptr, this).pixmap(window()->windowHandle(), QSize(side, side)));
    m_headline->setText(isFailed                          ? tr("The import failed.")
                        : success == Success::WithRemarks ? tr("The import is done, with remarks.")
                                                          : tr("The import is done."));
    if (isFailed)
        setWindowTitle(tr("Import Failed"));
    m_outcome->setPlainText(text);
    setStage(Stage::Done);
}

void olImportDialog::reject()
{
    if (m_stage != Stage::Done)
        emit cancelled();
    QDialog::reject();
}

void olImportDialog::setStage(Stage stage)
{
    m_stage = stage;
    const bool isAsking = stage == Stage::Asking;
    m_question->setVisible(isAsking);
    m_progress->setVisible(stage == Stage::Reading);
    m_verdict->setVisible(stage == Stage::Done);
    m_outcome->setVisible(stage == Stage::Done);
    m_buttons->clear();
    m_buttons->setStandardButtons(stage == Stage::Done ? QDialogButtonBox::Close : QDialogButtonBox::Cancel);
    if (isAsking)
        m_buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole)->setDefault(true);
    adjustSize();
}
