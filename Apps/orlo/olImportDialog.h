#pragma once

#include "olImportChoice.h"
#include "olImportFineness.h"

#include "Exchange/olImporter.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QRadioButton;

/// One import from the question to the outcome: what it will go by, how far it is, and what came of it. Nothing else
/// has to wait for it.
class olImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// How well an import went.
    enum class Success { Good, WithRemarks, Failed };

    /// What is open can only be added to where `hasScene`.
    olImportDialog(const std::vector<olImportJob> &jobs, bool hasScene, QWidget *parent = nullptr,
                   const olImportFineness::LockReason &lockReason = {});

    /// The job as it was asked for here.
    [[nodiscard]] olImportJob asked(olImportJob job) const;
    [[nodiscard]] olImportChoice choice() const;

    /// The settings that shall be so for later imports, too.
    [[nodiscard]] olImportFineness::Values kept() const;

    /// From the question to the progress.
    void showReading();
    void setPercent(int percent);

    /// From the progress to the outcome; the dialog stays until it is closed.
    void showOutcome(Success success, const QString &text);

    void reject() override;

signals:
    /// Import was pressed.
    void confirmed();

    /// Cancel was pressed, or the dialog closed, before the import was through.
    void cancelled();

private:
    enum class Stage { Asking, Reading, Done };

    void addChoices(bool isUnitOpen, bool hasScene);
    void setStage(Stage stage);

    Stage m_stage = Stage::Asking;
    QWidget *m_question;
    QLabel *m_options;
    olImportFineness *m_fineness = nullptr; ///< where the format has surfaces
    QString m_finenessFormat;
    QCheckBox *m_center;
    QCheckBox *m_ground;
    QComboBox *m_unit;
    QComboBox *m_up;
    QRadioButton *m_replace;
    QRadioButton *m_add;
    QProgressBar *m_progress;
    QWidget *m_verdict;
    QLabel *m_sign;
    QLabel *m_headline;
    QPlainTextEdit *m_outcome;
    QDialogButtonBox *m_buttons;
};
