#pragma once

#include <QByteArray>

/// Fails where the text is not what Tests/NAME.expected holds, and names the file that it left the text in.
void expectTranscript(const char *name, const QByteArray &printed);
