#pragma once

#include "State/olHostValue.h"
#include "olHostExport.h"

#include <memory>
#include <optional>

class olWebAccess;
class olWebPort;
template <class T> struct olHostSetting;
struct olWebAnswer;
struct olWebCertificate;
struct olWebRequest;

/// The host's built-in web server: a status page and the settings and state as JSON, all of it read-only. It runs in
/// the GUI thread's event loop and has no threads. While it lives it starts and stops whenever the host is told to,
/// before that call returns; it must go before the application object does.
class ORLO_HOST_EXPORT olWebServer : private olHostObserver
{
public:
    olWebServer();
    ~olWebServer() override;
    olWebServer(const olWebServer &) = delete;
    olWebServer &operator=(const olWebServer &) = delete;

private:
    void stateChanged(const olHostValueBase &value) override;

    /// Starts, anew where it runs already, with what the settings record says now. Where "localhost only" or "use white
    /// list" cannot be read it counts as set. A port of 0 stays closed. The SSL port opens only where the folder of the
    /// user's preferences holds a certificate, web.crt, with its private key, web.key, both as PEM. A port that cannot
    /// be opened is told in the log and among the refusals of the host's state.
    void start();

    /// Closes the ports and every connection before it returns.
    void stop();

    std::unique_ptr<olWebPort> open(const olHostSetting<int> &setting, bool loopbackOnly,
                                    const std::optional<olWebCertificate> &certificate);
    [[nodiscard]] olWebAnswer answer(const olWebRequest &request) const;

    std::unique_ptr<olWebAccess> m_access;
    std::unique_ptr<olWebPort> m_plain;
    std::unique_ptr<olWebPort> m_secure;
};
