#include "Kernel/olController.h"
#include "Kernel/olWebInterface.h"
#include "State/olHostState.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "Support/CleanHost.h"
#include "Support/Files.h"
#include "Support/RecordedLog.h"
#include "Utilities/olMessage.h"
#include "WebServer/olWebServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QHostInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QProcess>
#include <QSysInfo>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <ctime>
#include <random>

namespace
{

struct Reply {
    int status = 0; // 0 where nobody answered
    QByteArray body;
    QByteArray contentType;
    QByteArray allow;
};

/// A host with the record as its modules would fill it, a configuration folder of its own, and a free port.
class WebServer : public testing::Test
{
protected:
    WebServer()
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_configuration.path()));
        host.reset();
        port = freePort();
        record.set("WebInterface port", port);
        record.set("WebInterface ssl port", freePort());
        record.set("WebInterface localhost only", false);
        record.set("WebInterface use white list", false);
        record.set("WebInterface white list", std::string());
    }

    ~WebServer() override { cleanHost(); }

    static int freePort()
    {
        QTcpServer finder;
        // As the server does: what ended a moment ago at another loopback address is in its way, too.
        finder.listen(QHostAddress::AnyIPv4);
        return finder.serverPort();
    }

    [[nodiscard]] QNetworkRequest request(const QString &path) const
    {
        QNetworkRequest request(QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port).arg(path)));
        request.setTransferTimeout(5000);
        return request;
    }

    Reply get(const QString &path) { return wait(m_client.get(request(path))); }

    static Reply wait(QNetworkReply *pending)
    {
        const std::unique_ptr<QNetworkReply> reply(pending);
        QEventLoop loop;
        QObject::connect(pending, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        if (!pending->isFinished())
            loop.exec();
        return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll(),
                reply->rawHeader("Content-Type"), reply->rawHeader("Allow")};
    }

    QString configured(const char *file) const
    {
        QDir(m_configuration.path()).mkpath(QStringLiteral("orlo"));
        return m_configuration.filePath(QStringLiteral("orlo/") + QLatin1String(file));
    }

    QTemporaryDir m_configuration;
    QNetworkAccessManager m_client;
    olHostState &host = olHostState::the();
    olMessage &record = olPreferencesRegistry::the().record();
    int port = 0;
    RecordedLog log;
    QStringList &errors = log.errors;
    QStringList &lines = log.lines;

private:
    olWebServer m_server;
};

int threads() { return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); }

TEST_F(WebServer, AnswersWhileItIsOnAndIsGoneAfterIsOff)
{
    EXPECT_EQ(get("/").status, 0) << "refused before it is switched on";
    const int before = threads();

    olController::enableWebInterface(true);
    EXPECT_TRUE(host.webInterfaceRunning);
    EXPECT_NE(olController::getWebInterface(), nullptr);
    const Reply page = get("/");
    EXPECT_EQ(page.status, 200);
    EXPECT_EQ(page.contentType, "text/html; charset=utf-8");

    olController::enableWebInterface(false);
    EXPECT_FALSE(host.webInterfaceRunning);
    EXPECT_EQ(olController::getWebInterface(), nullptr);
    EXPECT_EQ(get("/").status, 0);
    EXPECT_LE(threads(), before);
    QTcpServer successor;
    EXPECT_TRUE(successor.listen(QHostAddress::Any, quint16(port))) << "the port is free again";
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(WebServer, ClosesWhatIsConnectedWhenItStops)
{
    olController::enableWebInterface(true);
    QTcpSocket idle;
    idle.connectToHost(QHostAddress::LocalHost, quint16(port));
    ASSERT_TRUE(QTest::qWaitFor([&] { return idle.state() == QAbstractSocket::ConnectedState; }, 30000));
    idle.write("GET / HTTP/1.1\r\nHost: localh");
    QTest::qWait(50);

    QElapsedTimer clock;
    clock.start();
    olController::enableWebInterface(false);
    EXPECT_LT(clock.elapsed(), 1000) << "nobody waits for a slow client";
    EXPECT_TRUE(QTest::qWaitFor([&] { return idle.state() == QAbstractSocket::UnconnectedState; }, 30000));
}

TEST_F(WebServer, TakesItsPortAtEachStartAndSaysWhyItCannotListen)
{
    olController::enableWebInterface(true);
    port = freePort();
    record.set("WebInterface port", port);
    EXPECT_EQ(get("/").status, 0);
    olController::enableWebInterface(true);
    EXPECT_EQ(get("/").status, 200);

    QTcpServer other;
    ASSERT_TRUE(other.listen(QHostAddress::Any));
    const std::pair<int, const char *> faults[] = {{other.serverPort(), "Address already in use"},
                                                   {-1, "ports are numbered 1 to 65535"},
                                                   {65536, "ports are numbered 1 to 65535"}};
    for (const auto &[number, reason] : faults) {
        errors.clear();
        record.set("WebInterface port", number);
        olController::enableWebInterface(true);
        EXPECT_EQ(errors,
                  QStringList(QStringLiteral("The web server does not listen on port %1: %2").arg(number).arg(reason)));
        EXPECT_EQ(host.refusals.get().at("WebInterface port"), errors.value(0)) << "it is told at the setting";
        EXPECT_FALSE(host.webInterfaceRunning);
    }
    errors.clear();
    record.set("WebInterface port", 0);
    olController::enableWebInterface(true);
    EXPECT_TRUE(host.refusals.get().empty());
    EXPECT_TRUE(errors.isEmpty()) << "0 keeps a port closed";
    EXPECT_FALSE(host.webInterfaceRunning);
}

TEST_F(WebServer, BindsToTheLoopbackAddressWhenOnlyThisMachineMayAsk)
{
    // Every address that begins with 127 is this machine's, but only one is the loopback's own.
    const auto answersElsewhere = [this] {
        olController::enableWebInterface(true);
        EXPECT_EQ(get("/").status, 200);
        QTcpSocket other;
        other.connectToHost(QStringLiteral("127.0.0.2"), quint16(port));
        return other.waitForConnected(1000);
    };
    EXPECT_TRUE(answersElsewhere());
    record.set("WebInterface localhost only", true);
    EXPECT_FALSE(answersElsewhere());
    record.remove("WebInterface localhost only");
    EXPECT_FALSE(answersElsewhere()) << "what cannot be read restricts";
}

TEST_F(WebServer, AnswersUnderNamesOfThisMachineAloneSoThatNoPageFromElsewhereReadsItByRebinding)
{
    QByteArray own = "127.0.0.1";
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback())
            own = address.toString().toLatin1();
    }
    const QByteArrayList none;
    const auto refused = [this](const QByteArrayList &names) {
        olController::enableWebInterface(true);
        QByteArrayList found;
        for (const QByteArray &name : names) {
            QNetworkRequest disguised = request("/settings.json");
            disguised.setRawHeader("Host", name);
            const int status = wait(m_client.get(disguised)).status;
            EXPECT_TRUE(status == 200 || status == 403) << name.data() << ' ' << status;
            if (status == 403)
                found << name;
        }
        return found;
    };
    const QByteArrayList local{"localhost", "LOCALHOST:8888", "127.0.0.1", "127.0.0.1:80", "[::1]", "[::1]:8888"};
    const QByteArrayList ours{QSysInfo::machineHostName().toUtf8(), own + ":8888"};
    const QByteArrayList others{"rebound.example:8888", "localhost.example", "[::1]evil.example", "[::1",
                                "localhost:80.example", "127.0.0.1.example", "192.0.2.7",         ":8888",
                                "localhost:8888:1"};
    const QByteArrayList listed{"Colleague.example:8888"};

    EXPECT_EQ(refused(local + ours), none);
    EXPECT_EQ(refused(others + listed), others + listed);

    record.set("WebInterface use white list", true);
    record.set("WebInterface white list", std::string("127.0.0.1\ncolleague.example"));
    EXPECT_EQ(refused(ours + listed), none);
    EXPECT_EQ(refused(others), others);

    record.set("WebInterface localhost only", true);
    EXPECT_EQ(refused(local), none);
    EXPECT_EQ(refused(listed), listed);
    if (own != "127.0.0.1") {
        EXPECT_EQ(refused(ours), ours);
    }
}

TEST_F(WebServer, AnswersWhateverNumberOfOthersHoldsOnToIt)
{
    olController::enableWebInterface(true);
    std::vector<std::unique_ptr<QTcpSocket>> held;
    const auto hold = [&](const char *from, int count, const char *sent) {
        for (int index = 0; index < count; ++index) {
            held.push_back(std::make_unique<QTcpSocket>());
            QTcpSocket &socket = *held.back();
            socket.bind(QHostAddress(QLatin1String(from)));
            socket.connectToHost(QHostAddress::LocalHost, quint16(port));
            ASSERT_TRUE(QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::ConnectedState; }, 30000));
            socket.write(sent);
        }
    };
    // One that has begun before all others is not the one that must go.
    hold("127.0.0.1", 1, "GET /state.json HTTP/1.1\r\nHost: local");
    for (const char *from : {"127.0.0.2", "127.0.0.3", "127.0.0.4", "127.0.0.5", "127.0.0.6"})
        hold(from, 17, "");
    EXPECT_EQ(get("/").status, 200) << "while they are idle";
    hold("127.0.0.7", 17, "G");
    QTimer trickle;
    QObject::connect(&trickle, &QTimer::timeout, [&held] {
        for (std::size_t index = 1; index < held.size(); ++index) {
            if (held[index]->state() == QAbstractSocket::ConnectedState)
                held[index]->write("E");
        }
    });
    trickle.start(50);
    EXPECT_EQ(get("/").status, 200) << "while they trickle";
    held.front()->write("host\r\n\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return held.front()->bytesAvailable() > 0; }, 30000));
    EXPECT_TRUE(held.front()->readAll().startsWith("HTTP/1.1 200"));
    trickle.stop();
    held.clear();
    EXPECT_EQ(get("/").status, 200) << "after they have gone";
    hold("127.0.0.1", 40, "GET /");
    EXPECT_EQ(get("/").status, 200) << "although they come from where the client is";
}

TEST_F(WebServer, AnswersAfterWhateverItWasSent)
{
    olController::enableWebInterface(true);
    std::mt19937 random(1);
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    for (int round = 0; round < 100; ++round) {
        QByteArray sent = "GET /state.json?a=b HTTP/1.1\r\nHost: localhost\r\nAccept: */*\r\n\r\n";
        for (int count = below(6); count >= 0; --count)
            sent[below(sent.size())] = char(below(256));
        if (round % 5 == 0)
            sent.insert(below(sent.size()), QByteArray(below(100000), char(below(256))));
        if (round % 3 == 0)
            sent.truncate(below(sent.size()));
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, quint16(port));
        ASSERT_TRUE(QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::ConnectedState; }, 30000)) << round;
        socket.write(sent);
        (void)QTest::qWaitFor([&] { return socket.bytesAvailable() > 0; }, 5);
    }
    EXPECT_EQ(get("/").status, 200);
}

TEST_F(WebServer, RefusesWhatWouldKeepTheInterfaceWaiting)
{
    olController::enableWebInterface(true);
    const auto answer = [this] {
        const Reply reply = get("/settings.json");
        EXPECT_EQ(reply.body.contains("too large"), reply.status == 503);
        return reply.status;
    };
    // A value is not even written down for that.
    const boost::any huge = std::string(std::size_t(1) << 26, 'x');
    record.set("Text", huge);
    const std::clock_t before = std::clock();
    EXPECT_EQ(answer(), 503);
    const std::clock_t answered = std::clock();
    EXPECT_FALSE(olValue::toJson(huge).empty());
    EXPECT_LT((answered - before) * 4, std::clock() - answered);
    record.set("Text", std::string(100000, 'x'));
    EXPECT_EQ(answer(), 200);
    record.remove("Text");
    for (int index = 0; index < 2000; ++index)
        record.set("Key " + std::to_string(index), index);
    EXPECT_EQ(answer(), 200);
    for (int index = 0; index < 100000; ++index)
        record.set("Key " + std::to_string(index), index);
    EXPECT_EQ(answer(), 503);
}

TEST_F(WebServer, AnswersOnlyListedHostsWhileTheWhiteListIsInUse)
{
    const std::pair<const char *, bool> cases[] = {{"", false},
                                                   {"10.0.0.1\n 127.0.0.1 \n", true},
                                                   {"10.0.0.1\r\nLocalHost\r\n", true},
                                                   {"10.0.0.1, 127.0.0.1", false}};
    record.set("WebInterface use white list", true);
    for (const auto &[list, isListed] : cases) {
        record.set("WebInterface white list", std::string(list));
        olController::enableWebInterface(true);
        for (const char *path : {"/", "/settings.json"}) {
            const Reply reply = get(QLatin1String(path));
            EXPECT_EQ(reply.status, isListed ? 200 : 403) << list << path;
            EXPECT_EQ(reply.body.contains("This host is not allowed."), !isListed);
        }
    }
    record.set("WebInterface use white list", false);
    record.set("WebInterface white list", std::string("10.0.0.1"));
    olController::enableWebInterface(true);
    EXPECT_EQ(get("/").status, 200) << "the list counts only while it is in use";
    record.set("WebInterface use white list", 0);
    olController::enableWebInterface(true);
    EXPECT_EQ(get("/").status, 403) << "what cannot be read restricts";
}

TEST_F(WebServer, AnswersTheAddressesThatListedNamesStandFor)
{
    const auto addresses = QHostInfo::fromName(QHostInfo::localHostName()).addresses();
    if (addresses.isEmpty())
        GTEST_SKIP() << "this machine's name stands for no address";

    record.set("WebInterface use white list", true);
    record.set("WebInterface white list", QHostInfo::localHostName().toStdString());
    olController::enableWebInterface(true);
    QNetworkRequest byAddress = request("/");
    QUrl url = byAddress.url();
    url.setHost(addresses.first().toString());
    byAddress.setUrl(url);
    EXPECT_TRUE(QTest::qWaitFor([&] { return wait(m_client.get(byAddress)).status == 200; }, 30000));
}

TEST_F(WebServer, TellsSettingsAndStateButNoSecretsNorForeignValues)
{
    host.fov = 60.5f;
    host.webInterfacePipe = "secretpipe";
    host.textureSearchPaths = {"/a&b/<i>\"x\"</i>"};
    record.set("Camera fov", 60.5f);
    record.set("Help path", QStringLiteral("C:\\Help \"new\""));
    record.set("Texture path", std::string("/latin/\xfc"));
    record.set("WebInterface white list", std::string("secrethost"));
    record.set("Proxy Password", std::string("secretword"));
    record.set("Unknown", std::vector<double>{1.0});
    olController::enableWebInterface(true);

    const Reply settings = get("/settings.json");
    EXPECT_EQ(settings.contentType, "application/json; charset=utf-8");
    const QJsonObject all = QJsonDocument::fromJson(settings.body).object();
    EXPECT_EQ(all["Camera fov"].toObject()["type"].toString(), "float");
    EXPECT_EQ(all["Help path"].toObject()["value"].toString(), "C:\\Help \"new\"");
    EXPECT_EQ(all["Texture path"].toObject()["value"].toString(), "/latin/" + QString(QChar(0xdcfc)))
        << "a byte that is no UTF-8 comes escaped";
    EXPECT_EQ(QJsonDocument::fromJson(get("/state.json").body).object()["fov"].toDouble(), 60.5);

    for (const char *path : {"/", "/settings.json", "/state.json"}) {
        const QByteArray body = get(QLatin1String(path)).body;
        EXPECT_FALSE(body.isEmpty() || body.contains("secret") || body.contains("Unknown")) << path;
    }
    const QByteArray page = get("/").body;
    EXPECT_TRUE(page.contains("/a&amp;b/&lt;i&gt;"));
    EXPECT_FALSE(page.contains("<i>"));
}

TEST_F(WebServer, ChangesNothingWhateverItIsAsked)
{
    olController::enableWebInterface(true);
    const olMessage::Entries before = record.entries();
    for (const char *method : {"POST", "PUT", "DELETE"}) {
        const Reply reply = wait(m_client.sendCustomRequest(request("/settings.json"), method, "x = 1"));
        EXPECT_EQ(reply.status, 405) << method;
        EXPECT_EQ(reply.allow, "GET, HEAD");
    }
    EXPECT_EQ(get("/python?code=1").status, 404);
    EXPECT_EQ(get("/../etc/passwd").status, 404);
    const Reply head = wait(m_client.head(request("/")));
    EXPECT_EQ(head.status, 200);
    EXPECT_TRUE(head.body.isEmpty());
    EXPECT_EQ(record.entries().size(), before.size());
}

TEST_F(WebServer, WritesRequestsIntoTheLogInDebugModeAlone)
{
    olController::enableWebInterface(true);
    get("/");
    EXPECT_TRUE(lines.isEmpty());
    olController::getWebInterface()->setDebugMode(true);
    get("/state.json");
    get("/a%0Aerror:%20b");
    wait(m_client.sendCustomRequest(request("/"), "\x1b[31m"));
    EXPECT_EQ(lines, (QStringList{"web server: 127.0.0.1 GET /state.json 200",
                                  "web server: 127.0.0.1 GET /a%0Aerror%3A%20b 404",
                                  "web server: 127.0.0.1 %1B%5B31m / 405"}));
}

TEST_F(WebServer, SpeaksTlsOnTheSslPortWhereACertificateIsInstalled)
{
    const QString certificate = configured("web.crt");
    const QString key = configured("web.key");
    QProcess maker;
    maker.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=localhost", "-days", "1",
                            "-keyout", key, "-out", certificate});
    ASSERT_TRUE(maker.waitForFinished() && maker.exitCode() == 0) << maker.readAllStandardError().data();
    olController::enableWebInterface(true);
    EXPECT_TRUE(errors.isEmpty());
    EXPECT_EQ(get("/").status, 200) << "the plain port stays";

    QNetworkRequest secure = request(QStringLiteral("/state.json"));
    QUrl url = secure.url();
    url.setScheme("https");
    url.setPort(boost::any_cast<int>(record.get("WebInterface ssl port")));
    secure.setUrl(url);
    QNetworkReply *reply = m_client.get(secure);
    QObject::connect(reply, &QNetworkReply::sslErrors, reply,
                     QOverload<>::of(&QNetworkReply::ignoreSslErrors)); // signed by itself
    const Reply answer = wait(reply);
    EXPECT_EQ(answer.status, 200);
    EXPECT_TRUE(QJsonDocument::fromJson(answer.body).isObject());

    // Level 0, else the client itself would not speak the old versions.
    const auto speaks = [&url](const char *version) {
        QProcess client;
        client.start("openssl", {"s_client", "-connect", QStringLiteral("127.0.0.1:%1").arg(url.port()), version,
                                 "-cipher", "ALL:@SECLEVEL=0"});
        client.closeWriteChannel();
        EXPECT_TRUE(QTest::qWaitFor([&client] { return client.state() == QProcess::NotRunning; }, 30000));
        return client.exitCode() == 0;
    };
    EXPECT_TRUE(speaks("-tls1_2"));
    EXPECT_FALSE(speaks("-tls1_1"));

    olController::enableWebInterface(false);
    EXPECT_EQ(wait(m_client.get(secure)).status, 0);

    errors.clear();
    record.set("WebInterface port", std::string("80"));
    record.set("WebInterface ssl port", std::string("443"));
    olController::enableWebInterface(true);
    EXPECT_FALSE(host.webInterfaceRunning) << "what is no number opens no port";
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(WebServer, GoesOnWithoutTlsWhenTheCertificateIsUnusable)
{
    for (const char *file : {"web.crt", "web.key"})
        writtenFile(configured(file), "no certificate");
    const auto isToldOf = [this](const QString &text) {
        errors.clear();
        olController::enableWebInterface(true);
        EXPECT_EQ(get("/").status, 200);
        return errors.size() == 1 && errors.first().contains(text);
    };
    QFile key(configured("web.key"));
    key.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    EXPECT_TRUE(isToldOf(configured("web.key") + ": others than its owner can read it")) << qPrintable(errors.value(0));
    key.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(isToldOf(configured("web.crt") + ": ")) << qPrintable(errors.value(0));
    QFile::resize(configured("web.key"), 0);
    EXPECT_TRUE(isToldOf("The web server cannot use " + configured("web.key") + ": it is empty"));
    QFile::remove(configured("web.key"));
    EXPECT_TRUE(isToldOf("web.key")) << qPrintable(errors.value(0));
}

} // namespace
