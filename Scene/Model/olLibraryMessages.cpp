#include "Model/olLibraryMessages.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>

#include <QCoreApplication>

void olSilenceLibrary() { Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer)); }

QString olNameOf(const TDF_Label &label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name))
        return {};
    return QString::fromUtf16(name->Get().ToExtString());
}

QString olShownNameOf(const TDF_Label &label)
{
    const QString name = olNameOf(label);
    return name.isEmpty() ? QCoreApplication::translate("olImport", "A part without a name") : name;
}
