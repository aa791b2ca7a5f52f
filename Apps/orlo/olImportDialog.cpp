#include "olImportDialog.h"

#include "olImportSummary.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

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

olImportDialog::olImportDialog(const std::vector<olImportJob> &jobs, QWidget *parent)
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

    auto *layout = new QVBoxLayout(this);
    for (QWidget *widget :
         {static_cast<QWidget *>(names), static_cast<QWidget *>(m_options), static_cast<QWidget *>(m_center),
          static_cast<QWidget *>(m_ground), static_cast<QWidget *>(m_progress), static_cast<QWidget *>(m_outcome),
          static_cast<QWidget *>(m_buttons)})
        layout->addWidget(widget);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    connect(m_buttons, &QDialogButtonBox::accepted, this, [this] {
        showReading();
        emit confirmed();
    });
    connect(m_buttons, &QDialogButtonBox::rejected, this, &olImportDialog::reject);
    setStage(Stage::Asking);
}

bool olImportDialog::centersInOrigin() const { return m_center->isChecked(); }

bool olImportDialog::putsOnGround() const { return m_ground->isChecked(); }

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
