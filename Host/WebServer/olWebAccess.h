#pragma once

#include "WebServer/olWebRequest.h"

#include <QObject>
#include <QSet>

#include <string>

/// Who may ask the web server. Everybody, unless it is restricted.
class olWebAccess : public QObject
{
    Q_OBJECT

public:
    /// Refuses requests under a name of another host: a page from elsewhere cannot reach the server by a name that was
    /// made to point at this machine.
    void allowLocalNamesOnly() { m_localNamesOnly = true; }

    /// Answers only the hosts of the list, one name or address a line; an empty list admits nobody. Names stand for the
    /// addresses that they have now; until these are found out, without waiting, the host is refused.
    void allowOnly(const std::string &list);

    [[nodiscard]] bool isAllowed(const olWebRequest &request) const;

private:
    void allowHost(const QString &host);

    bool m_localNamesOnly = false;
    bool m_listedOnly = false;
    QSet<QHostAddress> m_addresses;
};
