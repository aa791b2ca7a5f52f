// A script's lines, taken apart as the lines that put a value are.

#include "State/olValue.h"
#include "olScriptParser.h"
#include "olToolError.h"

#include <QList>

#include <cstdint>
#include <cstdlib>

namespace
{

void read(const QByteArray &text)
{
    olScriptParser line(text);
    line.setUsage("TYPE KEY VALUE");
    const std::string type = line.word("TYPE").text.toStdString();
    (void)line.word("KEY");
    const olScriptValue written = line.value();
    line.end();
    const boost::any value = olValue::fromJson(type, written.written);
    (void)written.text();
    (void)written.number();
    // What was understood reads back as the same.
    const std::string json = olValue::toJson(value);
    if (!value.empty() && !olValue::identical(value, olValue::fromJson(type, QByteArray::fromStdString(json))))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto lines = QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\n');
    for (const QByteArray &line : lines) {
        try {
            read(line);
        } catch (const olToolError &) {
            // Refused, which is as good.
        }
    }
    return 0;
}
