#pragma once

#include "State/olResult.h"
#include "WebServer/olWebRequest.h"

#include <QByteArray>
#include <QHostAddress>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <cstdarg>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct MHD_Connection;
struct MHD_Daemon;

/// A certificate chain and its private key, both as PEM.
struct olWebCertificate {
    QByteArray chain;
    QByteArray key;

    /// Where the chain was read, for messages.
    QString file;
};

/// One open port that speaks HTTP, or HTTPS with a certificate. It has no thread of its own: requests are answered from
/// the event loop of the thread that opened it, so that answers may read whatever belongs to that thread, and once it
/// is destroyed nothing of it is left.
class olWebPort
{
public:
    using Handler = std::function<olWebAnswer(const olWebRequest &)>;

    explicit olWebPort(Handler handler);
    ~olWebPort();
    olWebPort(const olWebPort &) = delete;
    olWebPort &operator=(const olWebPort &) = delete;

    /// Listens on the loopback address alone or on all.
    olResult<> open(quint16 port, bool loopbackOnly, const std::optional<olWebCertificate> &certificate);

    // For the library's callbacks.
    [[nodiscard]] olWebAnswer answer(const olWebRequest &request) const { return m_handler(request); }
    void add(MHD_Connection *connection);
    void forget(MHD_Connection *connection);

private:
    struct Connection {
        MHD_Connection *handle;
        QHostAddress client;
    };

    static void keepReason(void *self, const char *format, va_list arguments);
    void accept();
    void makeRoomFor(const QHostAddress &client);
    void run();

    Handler m_handler;
    QString m_reason;
    std::optional<olWebCertificate> m_certificate;
    int m_listener = -1;
    std::vector<Connection> m_connections; ///< the oldest first
    std::unique_ptr<MHD_Daemon, void (*)(MHD_Daemon *)> m_daemon;
    // Behind the daemon: they watch what it closes, so they go first.
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<QSocketNotifier> m_arrivals;
    QTimer m_timer;
    QTimer m_pause;
};
