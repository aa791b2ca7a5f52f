#include "olModalAnswers.h"

#include "State/olListed.h"
#include "State/olValue.h"
#include "Utilities/olWithoutMnemonic.h"
#include "Widgets/QOLColorDialog.h"
#include "olToolError.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTimer>
#include <QVariant>

#include <utility>

namespace
{

using Kind = olModalAnswer::Kind;

constexpr auto chooserProperty = "olDirectoryChooser";

const char *severity(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return "information";
    case QMessageBox::Warning:
        return "warning";
    case QMessageBox::Critical:
        return "critical";
    case QMessageBox::Question:
        return "question";
    case QMessageBox::NoIcon:
        break;
    }
    return "none";
}

std::string quoted(const QString &text) { return olValue::quoted(text.toStdString()); }

std::string described(const QMessageBox &box)
{
    std::string line =
        std::string("message ") + severity(box.icon()) + ' ' + quoted(box.windowTitle()) + ' ' + quoted(box.text());
    if (!box.informativeText().isEmpty())
        line += ' ' + quoted(box.informativeText());
    return line;
}

/// As the Escape key does; a box without an escape button would stay open for ever.
void escape(QMessageBox &box)
{
    const QPointer<QMessageBox> guard(&box);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&box, &press);
    if (guard && guard->isVisible())
        guard->reject();
}

QString nameOf(const olModalAnswer &answer)
{
    switch (answer.kind) {
    case Kind::Button:
        return olToolError::tr("the button \"%1\"").arg(answer.text);
    case Kind::Directory:
        return olToolError::tr("a directory");
    case Kind::Color:
        return olToolError::tr("a color");
    case Kind::Cancel:
        break;
    }
    return QStringLiteral("cancel");
}

QString misfit(const QString &dialog, const olModalAnswer &answer)
{
    return olToolError::tr("%1 opened, but the answer queued for it is %2").arg(dialog, nameOf(answer));
}

} // namespace

olModalAnswers::olModalAnswers(Report report) : m_report(std::move(report))
{
    qApp->installEventFilter(this);
    // The modules ask it in the place of the toolkit's dialog, which makes both paths absolute and takes only what is
    // there.
    qApp->setProperty(chooserProperty, QVariant::fromValue<QObject *>(this));
}

olModalAnswers::~olModalAnswers() { qApp->setProperty(chooserProperty, QVariant()); }

void olModalAnswers::finish()
{
    do {
        QCoreApplication::processEvents();
    } while (m_open > 0);
    // What was left to be deleted later must be gone before its library is.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString olModalAnswers::takeError() { return std::exchange(m_error, QString()); }

bool olModalAnswers::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog && dialog->isWindow())
        opened(*dialog);
    return false;
}

void olModalAnswers::opened(QDialog &dialog)
{
    const auto *box = qobject_cast<const QMessageBox *>(&dialog);
    if (box && m_report)
        m_report(described(*box));
    ++m_open;
    // It waits for its answer in an event loop of its own, which starts only after it was shown.
    QTimer::singleShot(0, this, [this, guard = QPointer<QDialog>(&dialog)] {
        --m_open;
        if (guard)
            answer(*guard);
    });
}

void olModalAnswers::answer(QDialog &dialog)
{
    if (auto *box = qobject_cast<QMessageBox *>(&dialog))
        answerBox(*box);
    else if (auto *colors = qobject_cast<QOLColorDialog *>(&dialog))
        answerColors(*colors);
    else
        dialog.reject();
}

void olModalAnswers::answerBox(QMessageBox &box)
{
    const olModalAnswer answer = next();
    if (answer.kind == Kind::Cancel)
        return escape(box);
    if (answer.kind != Kind::Button) {
        fail(misfit(olToolError::tr("the box \"%1\"").arg(box.windowTitle()), answer));
        return escape(box);
    }
    QStringList texts;
    const QList<QAbstractButton *> buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        const QString text = olWithoutMnemonic(button->text());
        if (text == answer.text || button->text() == answer.text)
            return button->click();
        texts << QLatin1Char('"') + text + QLatin1Char('"');
    }
    fail(olToolError::tr("the box \"%1\" has no button \"%2\"; it has %3")
             .arg(box.windowTitle(), answer.text, olListed(texts)));
    escape(box);
}

void olModalAnswers::answerColors(QOLColorDialog &dialog)
{
    const olModalAnswer answer = next();
    if (answer.kind == Kind::Color) {
        dialog.setColor(answer.color);
        return dialog.accept();
    }
    if (answer.kind != Kind::Cancel)
        fail(misfit(olToolError::tr("a color dialog"), answer));
    dialog.reject();
}

QString olModalAnswers::chooseDirectory(const QString &caption, const QString &startDirectory)
{
    if (m_report)
        m_report("chooser " + quoted(caption) + ' ' + quoted(startDirectory));
    const olModalAnswer answer = next();
    if (answer.kind == Kind::Directory)
        return answer.text;
    if (answer.kind != Kind::Cancel)
        fail(misfit(olToolError::tr("the directory chooser \"%1\"").arg(caption), answer));
    return {};
}

olModalAnswer olModalAnswers::next()
{
    if (m_answers.empty())
        return {};
    const olModalAnswer answer = m_answers.front();
    m_answers.pop_front();
    return answer;
}

void olModalAnswers::fail(const QString &why)
{
    if (m_error.isEmpty())
        m_error = why;
}
