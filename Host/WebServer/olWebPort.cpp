#include "WebServer/olWebPort.h"

#include <microhttpd.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace
{

constexpr unsigned maxConnections = 64;
constexpr std::ptrdiff_t maxConnectionsOfOneHost = 16;

/// Who connects all the time must not keep everything else waiting.
constexpr int acceptedAtOnce = 16;

/// How long nobody is let in when the process has no descriptors left.
constexpr std::chrono::seconds breather{1};
constexpr unsigned idleSeconds = 15;
constexpr size_t connectionMemory = 32 * size_t(1024);

// The library's own choice still lets a client talk it down to TLS 1.0.
constexpr const char *tlsPriorities = "NORMAL:-VERS-ALL:+VERS-TLS1.3:+VERS-TLS1.2";

/// A listening socket; -1, with errno set, where the port cannot be had.
int listenOn(quint16 port, bool loopbackOnly)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (listener < 0)
        return -1;
    // The server starts anew on the same port at every change of its settings.
    const int reuse = 1;
    ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse);

    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(loopbackOnly ? INADDR_LOOPBACK : INADDR_ANY);
    if (::bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 &&
        ::listen(listener, SOMAXCONN) == 0)
        return listener;
    const int error = errno;
    ::close(listener);
    errno = error;
    return -1;
}

QByteArray header(MHD_Connection *connection, const char *name)
{
    return MHD_lookup_connection_value(connection, MHD_HEADER_KIND, name);
}

QHostAddress clientOf(MHD_Connection *connection)
{
    const auto *info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    return info ? QHostAddress(info->client_addr) : QHostAddress();
}

int socketOf(MHD_Connection *connection)
{
    const auto *info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
    return info ? info->connect_fd : -1;
}

MHD_Result send(MHD_Connection *connection, const olWebAnswer &answer)
{
    MHD_Response *response = MHD_create_response_from_buffer(
        size_t(answer.body.size()), const_cast<char *>(answer.body.constData()), MHD_RESPMEM_MUST_COPY);
    if (!response)
        return MHD_NO;
    const std::pair<const char *, const char *> headers[] = {
        {"Content-Type", answer.contentType.constData()},
        {"Cache-Control", "no-store"},
        {"X-Content-Type-Options", "nosniff"},
        {"X-Frame-Options", "DENY"},
        {"Referrer-Policy", "no-referrer"},
        {"Content-Security-Policy", "default-src 'none'; style-src 'unsafe-inline'; frame-ancestors 'none'"},
    };
    for (const auto &[name, value] : headers)
        MHD_add_response_header(response, name, value);
    if (answer.status == MHD_HTTP_METHOD_NOT_ALLOWED)
        MHD_add_response_header(response, "Allow", "GET, HEAD");
    const MHD_Result result = MHD_queue_response(connection, answer.status, response);
    MHD_destroy_response(response);
    return result;
}

/// Answered as soon as the headers are there: what a client would upload is never read.
MHD_Result handle(void *port, MHD_Connection *connection, const char *path, const char *method, const char *,
                  const char *, size_t *, void **) noexcept
{
    const olWebRequest request{clientOf(connection), method, path, header(connection, MHD_HTTP_HEADER_HOST)};
    return send(connection, static_cast<const olWebPort *>(port)->answer(request));
}

void noteConnection(void *port, MHD_Connection *connection, void **, MHD_ConnectionNotificationCode code) noexcept
{
    if (code == MHD_CONNECTION_NOTIFY_STARTED)
        static_cast<olWebPort *>(port)->add(connection);
    else
        static_cast<olWebPort *>(port)->forget(connection);
}

} // namespace

olWebPort::olWebPort(Handler handler) : m_handler(std::move(handler)), m_daemon(nullptr, MHD_stop_daemon)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { run(); });
    m_pause.setSingleShot(true);
    m_pause.setInterval(breather);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { m_arrivals->setEnabled(true); });
}

olWebPort::~olWebPort()
{
    m_arrivals.reset();
    if (m_listener >= 0)
        ::close(m_listener);
}

void olWebPort::keepReason(void *self, const char *format, va_list arguments)
{
    // The first complaint names the cause.
    QString &reason = static_cast<olWebPort *>(self)->m_reason;
    if (reason.isEmpty())
        reason = QString::vasprintf(format, arguments).trimmed();
}

olResult<> olWebPort::open(quint16 port, bool loopbackOnly, const std::optional<olWebCertificate> &certificate)
{
    m_listener = listenOn(port, loopbackOnly);
    if (m_listener < 0)
        return olFailure{qt_error_string(errno)};

    m_certificate = certificate;
    // The library would stop listening at its limit and not be told when there is room again.
    unsigned flags = MHD_USE_EPOLL | MHD_USE_NO_LISTEN_SOCKET | MHD_USE_ERROR_LOG;
    std::vector<MHD_OptionItem> options;
    if (m_certificate) {
        flags |= MHD_USE_TLS;
        options.push_back({MHD_OPTION_HTTPS_MEM_CERT, 0, m_certificate->chain.data()});
        options.push_back({MHD_OPTION_HTTPS_MEM_KEY, 0, m_certificate->key.data()});
        options.push_back({MHD_OPTION_HTTPS_PRIORITIES, 0, const_cast<char *>(tlsPriorities)});
    }
    options.push_back({MHD_OPTION_END, 0, nullptr});

    m_daemon.reset(MHD_start_daemon(flags, 0, nullptr, nullptr, handle, this,                 //
                                    MHD_OPTION_EXTERNAL_LOGGER, &olWebPort::keepReason, this, //
                                    MHD_OPTION_NOTIFY_CONNECTION, noteConnection, this,       //
                                    MHD_OPTION_CONNECTION_LIMIT, maxConnections,              //
                                    MHD_OPTION_CONNECTION_TIMEOUT, idleSeconds,               //
                                    MHD_OPTION_CONNECTION_MEMORY_LIMIT, connectionMemory,     //
                                    MHD_OPTION_ARRAY, options.data(), MHD_OPTION_END));
    if (!m_daemon)
        return olFailure{m_reason};

    const auto *info = MHD_get_daemon_info(m_daemon.get(), MHD_DAEMON_INFO_EPOLL_FD);
    m_notifier = std::make_unique<QSocketNotifier>(info->epoll_fd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, &m_timer, [this] { run(); });
    m_arrivals = std::make_unique<QSocketNotifier>(m_listener, QSocketNotifier::Read);
    QObject::connect(m_arrivals.get(), &QSocketNotifier::activated, &m_timer, [this] { accept(); });
    return {};
}

void olWebPort::accept()
{
    for (int count = 0; count < acceptedAtOnce; ++count) {
        sockaddr_in address{};
        socklen_t length = sizeof address;
        auto *client = reinterpret_cast<sockaddr *>(&address);
        const int socket = ::accept4(m_listener, client, &length, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (socket < 0) {
            if (errno != EAGAIN && errno != EINTR && errno != ECONNABORTED) {
                m_arrivals->setEnabled(false);
                m_pause.start();
            }
            break;
        }
        makeRoomFor(QHostAddress(client));
        // Closes the socket where it fails.
        MHD_add_connection(m_daemon.get(), socket, client, length);
    }
    run();
}

/// However many connections are held open, and however slowly something trickles through them: a new one is served. It
/// takes the place of the oldest from its own address, or else from the address that has the most.
void olWebPort::makeRoomFor(const QHostAddress &client)
{
    const auto countOf = [this](const QHostAddress &address) {
        return std::count_if(m_connections.begin(), m_connections.end(),
                             [&address](const Connection &connection) { return connection.client == address; });
    };
    QHostAddress crowd = client;
    if (countOf(client) < maxConnectionsOfOneHost) {
        if (m_connections.size() < maxConnections)
            return;
        for (const Connection &connection : m_connections) {
            if (countOf(connection.client) > countOf(crowd))
                crowd = connection.client;
        }
    }
    const auto oldest = std::find_if(m_connections.begin(), m_connections.end(),
                                     [&crowd](const Connection &connection) { return connection.client == crowd; });
    if (oldest == m_connections.end())
        return;
    ::shutdown(socketOf(oldest->handle), SHUT_RDWR);
    run();
}

void olWebPort::add(MHD_Connection *connection) { m_connections.push_back({connection, clientOf(connection)}); }

void olWebPort::forget(MHD_Connection *connection)
{
    const auto isMeant = [connection](const Connection &open) { return open.handle == connection; };
    m_connections.erase(std::remove_if(m_connections.begin(), m_connections.end(), isMeant), m_connections.end());
}

void olWebPort::run()
{
    MHD_run(m_daemon.get());
    // What is due later without anything arriving: idle connections to close, data already read to go on with.
    MHD_UNSIGNED_LONG_LONG milliseconds = 0;
    if (MHD_get_timeout(m_daemon.get(), &milliseconds) == MHD_YES)
        m_timer.start(int(std::min<MHD_UNSIGNED_LONG_LONG>(milliseconds, std::numeric_limits<int>::max())));
    else
        m_timer.stop();
}
