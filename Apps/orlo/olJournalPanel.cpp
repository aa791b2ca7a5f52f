#include "olJournalPanel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

// Enough for many applies of everything; a session of days must not fill the memory.
constexpr int keptCalls = 10000;

} // namespace

olJournalPanel::olJournalPanel(QWidget *parent) : QWidget(parent), m_calls(new QPlainTextEdit)
{
    m_calls->setAccessibleName(tr("Host calls"));
    auto *clearButton = new QPushButton(tr("C&lear"));
    m_calls->setReadOnly(true);
    m_calls->setMaximumBlockCount(keptCalls);
    m_calls->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_calls->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto *head = new QHBoxLayout;
    head->addStretch(1);
    head->addWidget(clearButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(m_calls, 1);

    connect(clearButton, &QPushButton::clicked, this, &olJournalPanel::clear);
    olJournal::observe(this);
}

olJournalPanel::~olJournalPanel() { olJournal::observe(nullptr); }

QStringList olJournalPanel::calls() const
{
    return m_calls->toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void olJournalPanel::clear() { m_calls->clear(); }

void olJournalPanel::called(const std::string &call) { m_calls->appendPlainText(QString::fromStdString(call)); }
