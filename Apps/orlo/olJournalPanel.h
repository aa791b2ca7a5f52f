#pragma once

#include "State/olJournal.h"

#include <QStringList>
#include <QWidget>

class QPlainTextEdit;

/// Shows every call that changes the host, as it happens.
class olJournalPanel : public QWidget, private olJournalObserver
{
    Q_OBJECT

public:
    explicit olJournalPanel(QWidget *parent = nullptr);
    ~olJournalPanel() override;

    /// The calls since the panel was made or cleared, oldest first.
    [[nodiscard]] QStringList calls() const;

public slots:
    void clear();

private:
    void called(const std::string &call) override;

    QPlainTextEdit *m_calls;
};
