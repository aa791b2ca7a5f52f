#include "WebServer/olWebServer.h"

#include "State/olHostState.h"
#include "Store/olPreferencesStore.h"
#include "Utilities/olLog.h"
#include "WebServer/olWebAccess.h"
#include "WebServer/olWebPages.h"
#include "WebServer/olWebPort.h"
#include "olHostSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace
{

constexpr qint64 maxFileSize = 1 << 20;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olWebServer)
};

/// A file of the certificate; not what cannot be used.
olResult<QByteArray> read(const QString &name, bool isSecret)
{
    QFile file(name);
    const QFileInfo info(file);
    // Opening anything else might never end.
    if (info.exists() && !info.isFile())
        return olFailure{Words::tr("it is no regular file")};
    if (!file.open(QIODevice::ReadOnly))
        return olFailure{file.errorString()};
    if (isSecret && (file.permissions() & (QFile::ReadGroup | QFile::ReadOther)))
        return olFailure{Words::tr("others than its owner can read it")};
    const QByteArray content = file.read(maxFileSize);
    if (file.error() != QFile::NoError)
        return olFailure{file.errorString()};
    if (content.isEmpty())
        return olFailure{Words::tr("it is empty")};
    return content;
}

/// Empty, and told in the log, where it cannot be used.
QByteArray contentOf(const QString &name, bool isSecret)
{
    const olResult<QByteArray> content = read(name, isSecret);
    if (content.isOk())
        return *content;
    olLog::error(Words::tr("The web server cannot use %1: %2").arg(name, content.error()));
    return {};
}

/// The certificate that is installed; nothing where there is none or half of it cannot be used.
std::optional<olWebCertificate> installedCertificate()
{
    const QDir folder = QFileInfo(olPreferencesStore::userFile()).dir();
    const QString chain = folder.filePath(QStringLiteral("web.crt"));
    if (!QFileInfo::exists(chain))
        return std::nullopt;
    olWebCertificate certificate{contentOf(chain, false), contentOf(folder.filePath(QStringLiteral("web.key")), true),
                                 chain};
    return certificate.chain.isEmpty() || certificate.key.isEmpty() ? std::nullopt : std::make_optional(certificate);
}

void log(const olWebRequest &request, unsigned status)
{
    // Encoded, so that no client writes lines of its own into the log, nor commands to the terminal that shows it.
    const QByteArray method = request.method.left(16).toPercentEncoding();
    const QByteArray path = request.path.toPercentEncoding("/");
    olLog::info(QStringLiteral("web server: %1 %2 %3 %4")
                    .arg(request.client.toString(), QString::fromLatin1(method), QString::fromLatin1(path),
                         QString::number(status)));
}

} // namespace

olWebServer::olWebServer() { olHostState::the().addObserver(*this); }

olWebServer::~olWebServer()
{
    olHostState::the().removeObserver(*this);
    stop();
}

void olWebServer::stateChanged(const olHostValueBase &value)
{
    const olHostValue<bool> &wanted = olHostState::the().webInterfaceWanted;
    if (&value != &wanted)
        return;
    if (wanted)
        start();
    else
        stop();
}

void olWebServer::start()
{
    stop();
    using namespace olHostSettings;
    const bool localhostOnly = webLocalhostOnly.value();
    m_access = std::make_unique<olWebAccess>();
    if (localhostOnly)
        m_access->allowLoopbackNamesOnly();
    if (webUseWhiteList.value())
        m_access->allowOnly(webWhiteList.value());

    m_plain = open(webPort, localhostOnly, std::nullopt);
    if (const auto certificate = installedCertificate())
        m_secure = open(webSslPort, localhostOnly, certificate);
    olHostState::the().webInterfaceRunning = m_plain || m_secure;
}

void olWebServer::stop()
{
    m_plain.reset();
    m_secure.reset();
    m_access.reset();
    for (const auto &setting : {olHostSettings::webPort, olHostSettings::webSslPort})
        olHostState::the().refuse(setting.key, {});
    olHostState::the().webInterfaceRunning = false;
}

std::unique_ptr<olWebPort> olWebServer::open(const olHostSetting<int> &setting, bool loopbackOnly,
                                             const std::optional<olWebCertificate> &certificate)
{
    const int port = setting.value();
    if (port == 0)
        return nullptr;
    auto opened = std::make_unique<olWebPort>([this](const olWebRequest &request) { return answer(request); });
    const olResult<> listening = port < 0 || port > 65535 ? olFailure{Words::tr("ports are numbered 1 to 65535")}
                                                          : opened->open(quint16(port), loopbackOnly, certificate);
    if (listening.isOk())
        return opened;
    const QString place = certificate ? Words::tr("port %1 with %2").arg(QString::number(port), certificate->file)
                                      : Words::tr("port %1").arg(port);
    const QString sentence = Words::tr("The web server does not listen on %1: %2").arg(place, listening.error());
    olLog::error(sentence);
    olHostState::the().refuse(setting.key, sentence);
    return nullptr;
}

olWebAnswer olWebServer::answer(const olWebRequest &request) const
{
    olWebAnswer answer = m_access->isAllowed(request) ? olWebPages::answer(request) : olWebPages::refusal();
    if (olHostState::the().webInterfaceDebugMode)
        log(request, answer.status);
    return answer;
}
