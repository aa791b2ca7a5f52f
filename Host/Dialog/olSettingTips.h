#pragma once

#include "Editing/olSettingsSearch.h"
#include "olHostExport.h"

#include <QHash>
#include <QObject>

#include <vector>

class olPreferencesSession;

/// Tells more than the tips of a page do when they are shown: a setting's range and unit, its default, and when it
/// takes effect. The tips themselves stay as the form has them.
class ORLO_HOST_EXPORT olSettingTips : public QObject
{
    Q_OBJECT

public:
    explicit olSettingTips(const olPreferencesSession &session) : m_session(session) {}

    void addTo(const std::vector<olFoundControl> &controls);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QStringList facts(const olFoundControl &control) const;

    const olPreferencesSession &m_session;
    QHash<const QObject *, olFoundControl> m_controls;
};
