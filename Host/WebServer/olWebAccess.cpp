#include "WebServer/olWebAccess.h"

#include "Utilities/olLog.h"

#include <QHostInfo>
#include <QRegularExpression>

namespace
{

/// The host without its port.
QByteArray withoutPort(const QByteArray &host)
{
    if (host.startsWith('['))
        return host.left(host.indexOf(']') + 1);
    return host.left(host.indexOf(':'));
}

bool isLocalName(const QByteArray &host)
{
    const QByteArray name = withoutPort(host).toLower();
    return name == "localhost" || name == "127.0.0.1" || name == "[::1]";
}

} // namespace

void olWebAccess::allowOnly(const std::string &list)
{
    m_listedOnly = true;
    const QStringList lines = QString::fromStdString(list).split(QRegularExpression(QStringLiteral("[\r\n]+")));
    for (const QString &line : lines) {
        const QString host = line.trimmed();
        if (!host.isEmpty())
            allowHost(host);
    }
}

void olWebAccess::allowHost(const QString &host)
{
    const QHostAddress address(host);
    if (!address.isNull()) {
        m_addresses.insert(address);
        return;
    }
    if (host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0) {
        m_addresses.insert(QHostAddress(QHostAddress::LocalHost));
        return;
    }
    QHostInfo::lookupHost(host, this, [this](const QHostInfo &found) {
        if (found.error() != QHostInfo::NoError)
            olLog::error(tr("The web server does not answer %1: %2").arg(found.hostName(), found.errorString()));
        const QList<QHostAddress> addresses = found.addresses();
        for (const QHostAddress &resolved : addresses)
            m_addresses.insert(resolved);
    });
}

bool olWebAccess::isAllowed(const olWebRequest &request) const
{
    // A client that names no host is no browser.
    if (m_localNamesOnly && !request.host.isEmpty() && !isLocalName(request.host))
        return false;
    return !m_listedOnly || m_addresses.contains(request.client);
}
