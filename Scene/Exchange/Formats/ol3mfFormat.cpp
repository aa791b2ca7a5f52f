#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>
#include <minizip/unzip.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QString>
#include <QXmlStreamReader>

#include <functional>
#include <memory>

olModelFormat ol3mfFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    return file.read(2) == "PK" ? olResult<>() : olFailure{olReason::tr("this is no 3MF file")};
}

/// What the library passes over in the package: how long the unit is, what the objects are called, and what a reader
/// must understand.
class Package
{
public:
    explicit Package(const QString &file) : m_zip(unzOpen64(QFile::encodeName(file).constData()), unzClose) {}

    olResult<> read(olAssimpReader::Conventions &conventions)
    {
        QString model;
        eachElement(QStringLiteral("_rels/.rels"), [&model](const QXmlStreamReader &xml) {
            if (xml.attributes().value(QLatin1String("Type")).endsWith(QLatin1String("/3dmodel")))
                model = QDir::cleanPath(QLatin1Char('/') + xml.attributes().value(QLatin1String("Target"))).mid(1);
        });
        eachElement(model, [&](const QXmlStreamReader &xml) {
            if (xml.name() == QLatin1String("model"))
                takeModel(xml, conventions);
            else if (xml.name() == QLatin1String("object"))
                takeObject(xml.attributes(), conventions);
            else if (xml.name() == QLatin1String("component") || xml.name() == QLatin1String("item"))
                checkPlace(xml.attributes());
        });
        return m_result;
    }

private:
    void eachElement(const QString &name, const std::function<void(const QXmlStreamReader &)> &visit)
    {
        constexpr int anyCase = 2;
        if (!m_zip || unzLocateFile(m_zip.get(), name.toUtf8().constData(), anyCase) != UNZ_OK ||
            unzOpenCurrentFile(m_zip.get()) != UNZ_OK)
            return;
        QXmlStreamReader xml;
        QByteArray block(1 << 16, Qt::Uninitialized);
        for (int count = 0; (count = unzReadCurrentFile(m_zip.get(), block.data(), unsigned(block.size()))) > 0;) {
            xml.addData(block.left(count));
            while (!xml.atEnd()) {
                if (xml.readNext() == QXmlStreamReader::StartElement)
                    visit(xml);
            }
        }
        unzCloseCurrentFile(m_zip.get());
    }

    void takeModel(const QXmlStreamReader &xml, olAssimpReader::Conventions &conventions)
    {
        static const QHash<QString, double> units{{QStringLiteral("micron"), 0.001},
                                                  {QStringLiteral("centimeter"), 10},
                                                  {QStringLiteral("meter"), 1000},
                                                  {QStringLiteral("inch"), 25.4},
                                                  {QStringLiteral("foot"), 304.8}};
        conventions.unit = units.value(xml.attributes().value(QLatin1String("unit")).toString(), 1.0);
        const QStringList required = xml.attributes()
                                         .value(QLatin1String("requiredextensions"))
                                         .toString()
                                         .split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QXmlStreamNamespaceDeclaration &space : xml.namespaceDeclarations()) {
            const bool isKnown = isOf(space.namespaceUri(), "/material/") || isOf(space.namespaceUri(), "/production/");
            if (required.contains(space.prefix()) && !isKnown)
                refuse(space.namespaceUri());
        }
    }

    /// Of the extension for production the library passes over the numbers of parts, and that some are in other files.
    void checkPlace(const QXmlStreamAttributes &part)
    {
        for (const QXmlStreamAttribute &each : part) {
            if (each.name() == QLatin1String("path") && isOf(each.namespaceUri(), "/production/"))
                refuse(each.namespaceUri());
        }
    }

    static bool isOf(const QStringRef &space, const char *extension)
    {
        return space.contains(QLatin1String(extension));
    }

    void refuse(const QStringRef &space)
    {
        m_result =
            olFailure{olReason::tr("it requires the extension %1, which is not supported").arg(space.toString())};
    }

    /// The library numbers meshes and nodes.
    static void takeObject(const QXmlStreamAttributes &object, olAssimpReader::Conventions &conventions)
    {
        const QString number = object.value(QLatin1String("id")).toString();
        const QString name = object.value(QLatin1String("name")).toString();
        conventions.names.insert(number, name);
        conventions.names.insert(QStringLiteral("Object_") + number, name);
    }

    std::unique_ptr<void, int (*)(unzFile)> m_zip;
    olResult<> m_result;
};

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    olAssimpReader::Conventions conventions;
    if (const olResult<> known = Package(job.fileToRead()).read(conventions); !known.isOk())
        return known;
    return olAssimpReader::read(job, conventions, document, progress, remarks);
}

} // namespace

olModelFormat ol3mfFormat()
{
    return {"3MF",
            "3MF",
            {QStringLiteral("3mf")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Structure | olModelFormat::Names |
                olModelFormat::UnitAndUp,
            check,
            read,
            nullptr};
}
