#pragma once

#include "State/olHostValue.h"
#include "olHostExport.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

#include <string>

class QAction;
class QLineEdit;
class QWidget;
class olPreferencesEntry;

/// Looks after the number fields of a page while a person types into them. What cannot be taken is marked at the field
/// with a sentence that says what can, and a field that is left empty or unfinished gets its last number back. A number
/// that the host refuses to follow is marked as well, with the host's sentence.
class ORLO_HOST_EXPORT olFieldGuard : public QObject, private olHostObserver
{
    Q_OBJECT

public:
    /// The module must have a page, and both must outlive this object.
    explicit olFieldGuard(const olPreferencesEntry &entry);
    ~olFieldGuard() override;

    /// Gives all fields that do not read as a number their last one back.
    void restoreUnfinished();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Field {
        QString before;         ///< what it showed before the typing began
        bool isTyped = false;   ///< whether it shows what somebody typed
        bool isTold = false;    ///< of the typing, before the text tells of itself
        QElapsedTimer refused;  ///< runs while what follows on a refused key is refused too
        QPointer<QAction> mark; ///< while it is marked
        bool isOfHost = false;  ///< whether the mark is about what the host refuses
        QString refusedText;    ///< what it shows then
    };

    void stateChanged(const olHostValueBase &value) override;
    void showRefusals();
    void showRefusal(QLineEdit &field);

    void watch(QLineEdit &field);
    void edited(QLineEdit &field, const QString &text);
    void refuse(QLineEdit &field);
    void restore(QLineEdit &field);
    void mark(QLineEdit &field, const QString &sentence);
    void markExpectation(QLineEdit &field);
    void clearMark(QLineEdit &field);
    [[nodiscard]] bool takesKey(QLineEdit &field, const QString &typed);
    [[nodiscard]] std::string keyOf(const QLineEdit &field) const;
    [[nodiscard]] QString expectation(const QLineEdit &field) const;

    const olPreferencesEntry &m_entry;
    QMap<QLineEdit *, Field> m_fields;
};
