#include "Exchange/Formats/olFormatTools.h"

#include "State/olListed.h"

#include <Interface_Check.hxx>
#include <TCollection_HAsciiString.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>

olFailure olFormatTools::cutOff() { return {olReason::tr("the file is cut off or damaged")}; }

olFailure olFormatTools::damaged() { return {olReason::tr("the file is damaged or of another format")}; }

olFailure olFormatTools::untaken() { return {olReason::tr("its content cannot be taken over")}; }

olResult<>
olFormatTools::checkEntities(const Handle(Interface_InterfaceModel) & model,
                             const std::function<bool(const Handle(Standard_Transient) & entity)> &mustBeWhole,
                             QStringList &remarks)
{
    QStringList others;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (!model->Check(number, Standard_True)->HasFailed())
            continue;
        const Handle(Standard_Transient) entity = model->Value(number);
        others << QString::fromLatin1(model->StringLabel(entity)->ToCString());
        if (mustBeWhole(entity))
            return incomplete(others.last());
    }
    if (!others.isEmpty())
        remarks << olReason::tr("Entries of the file that are not as they should be, and may be missing: %1.")
                       .arg(listed(others));
    return {};
}

olFailure olFormatTools::incomplete(const QString &entry)
{
    return {olReason::tr("%1 lacks what it is made of, or is made of what cannot be understood").arg(entry)};
}

TCollection_AsciiString olFormatTools::path(const QString &file) { return QFile::encodeName(file).constData(); }

bool olFormatTools::writePlainly(const QString &file, const std::function<bool(const char *)> &write)
{
    const QString plain = QFileInfo(file).path() + QStringLiteral("/model");
    return write(QFile::encodeName(plain).constData()) && QFile::rename(plain, file);
}

QString olFormatTools::listed(const QStringList &names)
{
    constexpr int most = 4;
    const QString first = olListed(names.mid(0, most));
    return names.size() > most ? olReason::tr("%1 and %2 more").arg(first).arg(names.size() - most) : first;
}

QString olFormatTools::listedWithNameless(QStringList names)
{
    const int nameless = names.removeAll(QString());
    names.removeDuplicates();
    if (nameless == 0)
        return listed(names);
    const QString rest = olReason::tr("%1 without a name").arg(nameless);
    return names.isEmpty() ? rest : olListed({listed(names), rest});
}

QString olFormatTools::fileIn(const QDir &folder, const QString &name)
{
    return folder.filePath(name.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + name : name);
}

QByteArray olFormatTools::tailOf(QFile &file)
{
    constexpr qint64 enough = 4096;
    file.seek(qMax<qint64>(0, file.size() - enough));
    return file.readAll();
}

olFormatTools::Secluded::Secluded(const olImportJob &job)
    : m_folder(QDir(job.temporaryDirectory).filePath(QStringLiteral("orlo-import-XXXXXX")))
{
    m_file = fileIn(QDir(m_folder.path()), QFileInfo(job.file).fileName());
    m_isReady = m_folder.isValid() && QFile::link(job.file, m_file);
}
