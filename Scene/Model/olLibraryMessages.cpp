#include "Model/olLibraryMessages.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>

#include <QCoreApplication>

#include <utility>

namespace
{

thread_local olLibraryFailures *current = nullptr;

/// Stands where the library's own printer stood.
class Listener : public Message_Printer
{
    DEFINE_STANDARD_RTTI_INLINE(Listener, Message_Printer)

public:
    Listener() { SetTraceLevel(Message_Fail); }

protected:
    void send(const TCollection_AsciiString &text, const Message_Gravity gravity) const override
    {
        if (current && gravity >= Message_Fail)
            current->add(QString::fromUtf8(text.ToCString()));
    }
};

bool replacePrinters()
{
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    return Message::DefaultMessenger()->AddPrinter(new Listener);
}

} // namespace

void olSilenceLibrary()
{
    static const bool isReplaced = replacePrinters();
    Q_UNUSED(isReplaced)
}

olLibraryFailures::olLibraryFailures() : m_outer(std::exchange(current, this)) {}

olLibraryFailures::~olLibraryFailures() { current = m_outer; }

void olLibraryFailures::add(const QString &text)
{
    // The last line says what it is; those before it name the file, which every message does anyway.
    QString line = text.trimmed().section(QLatin1Char('\n'), -1).trimmed();
    while (line.endsWith(QLatin1Char('.')))
        line.chop(1);
    if (m_first.isEmpty())
        m_first = line;
}

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
