#pragma once

#include "Exchange/olImportJob.h"
#include "State/olResult.h"

#include <Interface_InterfaceModel.hxx>
#include <TCollection_AsciiString.hxx>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class QDir;
class QFile;

/// Half sentences of the messages on files that cannot be read.
struct olReason {
    Q_DECLARE_TR_FUNCTIONS(olReason)
};

/// What the files of the formats share.
namespace olFormatTools
{

/// Reasons that are told by several.
[[nodiscard]] olFailure cutOff();
[[nodiscard]] olFailure damaged();
[[nodiscard]] olFailure untaken();
[[nodiscard]] olFailure incomplete(const QString &entry);

/// Whether what the library has read can be taken over: it crashes over some kinds of entities that lack something they
/// are made of. Whatever else is not as it should be becomes a remark.
olResult<> checkEntities(const Handle(Interface_InterfaceModel) & model,
                         const std::function<bool(const Handle(Standard_Transient) & entity)> &mustBeWhole,
                         QStringList &remarks);

/// The name as the library wants it: the bytes that the system has.
[[nodiscard]] TCollection_AsciiString path(const QString &file);

/// Lets a writer of the library write under a plain name, as it takes no others, and gives the file its own then.
[[nodiscard]] bool writePlainly(const QString &file, const std::function<bool(const char *plainFile)> &write);

/// The names in one text: the first few, and how many more there are.
[[nodiscard]] QString listed(const QStringList &names);

/// The same where some of the names are empty: how many are without one comes last.
[[nodiscard]] QString listedWithNameless(QStringList names);

/// The file of that name in the folder; one that begins with a colon is no resource of the program.
[[nodiscard]] QString fileIn(const QDir &folder, const QString &name);

/// The last few kilobytes of the file.
[[nodiscard]] QByteArray tailOf(QFile &file);

/// Where the file is seen without those that lie beside it, so that a reader finds nothing that it refers to.
class Secluded
{
public:
    explicit Secluded(const olImportJob &job);

    [[nodiscard]] bool isReady() const { return m_isReady; }
    [[nodiscard]] const QString &file() const { return m_file; }

private:
    QTemporaryDir m_folder;
    QString m_file;
    bool m_isReady = false;
};

} // namespace olFormatTools
