#pragma once

#include "WebServer/olWebRequest.h"

#include <QByteArray>
#include <QHostAddress>
#include <QHostInfo>
#include <QObject>
#include <QSet>
#include <QString>

#include <string>

/// Who may ask the web server, and under which names: those of this machine alone, so that no page from elsewhere can
/// reach it by a name that was made to point here. Other than that everybody, unless it is restricted.
class olWebAccess : public QObject
{
    Q_OBJECT

public:
    /// Answers only under localhost, 127.0.0.1 and [::1].
    void allowLoopbackNamesOnly() { m_loopbackNamesOnly = true; }

    /// Answers only the hosts of the list, one name or address a line, and under these names too; an empty list admits
    /// nobody. Names stand for the addresses that they have now; until these are found out, without waiting, the host
    /// is refused.
    void allowOnly(const std::string &list);

    [[nodiscard]] bool isAllowed(const olWebRequest &request) const;

private slots:
    void allowFound(const QHostInfo &found);

private:
    void allowHost(const QString &host);
    [[nodiscard]] bool isAllowedName(const QByteArray &host) const;

    bool m_loopbackNamesOnly = false;
    bool m_listedOnly = false;
    QSet<QString> m_names;
    QSet<QHostAddress> m_addresses;
};
