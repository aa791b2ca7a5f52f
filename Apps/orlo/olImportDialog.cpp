#include "olImportDialog.h"

#include "olImportSummary.h"

#include "Exchange/olModelFormat.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

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

olImportDialog::olImportDialog(const std::vector<olImportJob> &jobs, QWidget *parent,
                               const olImportFineness::LockReason &lockReason)
    : QDialog(parent),
      m_options(new QLabel(summariesOf(jobs))),
      m_center(new QCheckBox(tr("Center to Origin"))),
      m_ground(new QCheckBox(tr("Place Objects on the Ground"))),
      m_progress(new QProgressBar),
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

    const auto hasSurfaces = [](const olImportJob &job) {
        const olModelFormat *format = olModelFormat::ofFile(job.file);
        return format && format->holds(olModelFormat::Surfaces);
    };
    const auto fine = std::find_if(jobs.begin(), jobs.end(), hasSurfaces);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(names);
    layout->addWidget(m_options);
    if (lockReason && fine != jobs.end()) {
        m_finenessFormat = QLatin1String(olModelFormat::ofFile(fine->file)->optionsType);
        m_fineness = new olImportFineness(*fine, lockReason);
        layout->addWidget(m_fineness);
    }
    for (QWidget *widget : std::initializer_list<QWidget *>{m_center, m_ground, m_progress, m_outcome, m_buttons})
        layout->addWidget(widget);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
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

olImportFineness::Values olImportDialog::kept() const
{
    return m_fineness ? m_fineness->kept() : olImportFineness::Values();
}

void olImportDialog::showReading() { setStage(Stage::Reading); }

void olImportDialog::setPercent(int percent) { m_progress->setValue(percent); }

void olImportDialog::showOutcome(const QString &text)
{
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
    m_options->setVisible(isAsking);
    if (m_fineness)
        m_fineness->setVisible(isAsking);
    m_center->setVisible(isAsking);
    m_ground->setVisible(isAsking);
    m_progress->setVisible(stage == Stage::Reading);
    m_outcome->setVisible(stage == Stage::Done);
    m_buttons->clear();
    m_buttons->setStandardButtons(stage == Stage::Done ? QDialogButtonBox::Close : QDialogButtonBox::Cancel);
    if (isAsking)
        m_buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole)->setDefault(true);
    adjustSize();
}
