#include "WebServer/olWebAccess.h"

#include "Utilities/olLog.h"

#include <QNetworkInterface>
#include <QRegularExpression>
#include <QSysInfo>

namespace
{

/// The name alone, in small letters and an address without its brackets; empty where the text is no name with or
/// without a port.
QString nameOf(const QByteArray &host)
{
    static const QRegularExpression form(QStringLiteral("^(?:\\[([0-9a-f:.]+)\\]|([^:\\[\\]]+))(?::[0-9]*)?$"));
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(host).toLower());
    return match.captured(1) + match.captured(2);
}

bool isLoopback(const QString &name)
{
    return name == QLatin1String("localhost") || name == QLatin1String("127.0.0.1") ||
           QHostAddress(name) == QHostAddress(QHostAddress::LocalHostIPv6);
}

bool isThisMachine(const QString &name)
{
    const QHostAddress address(name);
    return address.isNull() ? name == QSysInfo::machineHostName().toLower()
                            : QNetworkInterface::allAddresses().contains(address);
}

} // namespace

void olWebAccess::allowOnly(const std::string &list)
{
    m_listedOnly = true;
    const QStringList lines = QString::fromStdString(list).split(QRegularExpression(QStringLiteral("[\r\n]+")));
    for (const QString &line : lines) {
        const QString host = line.trimmed();
        if (host.isEmpty())
            continue;
        m_names.insert(host.toLower());
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
    // By the slot's name: a function would never be freed if the program ends before the answer.
    QHostInfo::lookupHost(host, this, SLOT(allowFound(QHostInfo)));
}

void olWebAccess::allowFound(const QHostInfo &found)
{
    if (found.error() != QHostInfo::NoError)
        olLog::error(tr("The web server does not answer %1: %2").arg(found.hostName(), found.errorString()));
    const QList<QHostAddress> addresses = found.addresses();
    for (const QHostAddress &resolved : addresses)
        m_addresses.insert(resolved);
}

bool olWebAccess::isAllowed(const olWebRequest &request) const
{
    return isAllowedName(request.host) && (!m_listedOnly || m_addresses.contains(request.client));
}

bool olWebAccess::isAllowedName(const QByteArray &host) const
{
    // A client that names no host is no browser.
    if (host.isEmpty())
        return true;
    const QString name = nameOf(host);
    return isLoopback(name) || (!m_loopbackNamesOnly && (isThisMachine(name) || m_names.contains(name)));
}
