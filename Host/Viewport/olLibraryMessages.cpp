#include "Viewport/olLibraryMessages.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>

#include <QCoreApplication>

void olSilenceLibrary()
{
    static const int removed = Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    Q_UNUSED(removed)
}

QString olNameOf(const TDF_Label &label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name))
        return QCoreApplication::translate("olImport", "A part without a name");
    return QString::fromUtf16(name->Get().ToExtString());
}
