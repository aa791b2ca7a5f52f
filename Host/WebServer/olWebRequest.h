#pragma once

#include <QByteArray>
#include <QHostAddress>

/// What the web server is asked.
struct olWebRequest {
    QHostAddress client;
    QByteArray method;

    /// Decoded, without the part behind a question mark.
    QByteArray path;

    /// The host that the client believes to speak to, as it wrote it; empty where it did not say.
    QByteArray host;
};

/// What it answers.
struct olWebAnswer {
    unsigned status = 200;
    QByteArray contentType = "text/plain; charset=utf-8";
    QByteArray body;
};
