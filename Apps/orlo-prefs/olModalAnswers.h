#pragma once

#include <OpenSG/OSGColor.h>

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <string>

class QDialog;
class QMessageBox;
class QOLColorDialog;

/// The answer to the next modal box, directory chooser or colour dialog.
struct olModalAnswer {
    enum class Kind { Button, Directory, Color, Cancel };

    Kind kind = Kind::Cancel;
    QString text; ///< of the button, or the directory
    osg::Color3f color;
};

/// Sits in the user's place before message boxes, choosers and colour dialogs, so that nothing ever waits for one:
/// tells each that opens and answers it as was queued, else with its escape button. One at a time may live.
class olModalAnswers : public QObject
{
    Q_OBJECT

public:
    /// Gets a line for every box and chooser that opens.
    using Report = std::function<void(const std::string &line)>;

    explicit olModalAnswers(Report report = {});
    ~olModalAnswers() override;

    void queue(const olModalAnswer &answer) { m_answers.push_back(answer); }

    /// Returns when no dialog is open any more, those that nobody waited for included.
    void finish();

    /// Why an answer could not be given since the last call; empty when all could.
    [[nodiscard]] QString takeError();

    /// The chosen one, or an empty text for Cancel.
    Q_INVOKABLE QString chooseDirectory(const QString &caption, const QString &startDirectory);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void opened(QDialog &dialog);
    void answer(QDialog &dialog);
    void answerBox(QMessageBox &box);
    void answerColors(QOLColorDialog &dialog);
    [[nodiscard]] olModalAnswer next();
    void fail(const QString &why);

    Report m_report;
    std::deque<olModalAnswer> m_answers;
    QString m_error;
    int m_open = 0;
};
