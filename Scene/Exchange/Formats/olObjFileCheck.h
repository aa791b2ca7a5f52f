#pragma once

#include <QString>
#include <QStringList>

class QFile;

/// Why the open file cannot be a whole OBJ model, in half a sentence; empty where nothing speaks against it. The format
/// has no end mark and the reader takes what it can, so that every line is looked at here. Remarks tell of what lies
/// beside the model and is not there.
[[nodiscard]] QString olObjFault(QFile &file, QStringList &remarks);
