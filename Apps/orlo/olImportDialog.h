#pragma once

#include "olImportFineness.h"

#include "Exchange/olImporter.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;

/// One import from the question to the outcome: what it will go by, how far it is, and what came of it. Nothing else
/// has to wait for it.
class olImportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit olImportDialog(const std::vector<olImportJob> &jobs, QWidget *parent = nullptr,
                            const olImportFineness::LockReason &lockReason = {});

    /// The job as it was asked for here.
    [[nodiscard]] olImportJob asked(olImportJob job) const;

    /// The settings that shall be so for later imports, too.
    [[nodiscard]] olImportFineness::Values kept() const;

    /// From the question to the progress.
    void showReading();
    void setPercent(int percent);

    /// From the progress to the outcome; the dialog stays until it is closed.
    void showOutcome(const QString &text);

    void reject() override;

signals:
    /// Import was pressed.
    void confirmed();

    /// Cancel was pressed, or the dialog closed, before the import was through.
    void cancelled();

private:
    enum class Stage { Asking, Reading, Done };

    void setStage(Stage stage);

    Stage m_stage = Stage::Asking;
    QLabel *m_options;
    olImportFineness *m_fineness = nullptr; ///< where the format has surfaces
    QString m_finenessFormat;
    QCheckBox *m_center;
    QCheckBox *m_ground;
    QProgressBar *m_progress;
    QPlainTextEdit *m_outcome;
    QDialogButtonBox *m_buttons;
};
