#include "Exchange/olFileNames.h"

#include <QByteArray>
#include <QString>
#include <QTextCodec>

namespace
{

/// UTF-8 in which a byte that belongs to no letter becomes half a pair of surrogates, and a byte again.
class Codec : public QTextCodec
{
private:
    static constexpr ushort escape = 0xdc00;
    static constexpr int longest = 4;

    [[nodiscard]] QByteArray name() const override { return QByteArrayLiteral("orlo-file-names"); }

    // None that is known: the toolkit would not ask for what it knows.
    [[nodiscard]] int mibEnum() const override { return -4301; }

    /// How many bytes the letter has that begins here; 0 for none, -1 where it may go on behind the end.
    static int letterAt(const uchar *at, const uchar *end)
    {
        const int length = *at < 0x80 ? 1 : *at < 0xc2 ? 0 : *at < 0xe0 ? 2 : *at < 0xf0 ? 3 : *at < 0xf5 ? 4 : 0;
        for (int index = 1; index < length; ++index) {
            if (at + index == end)
                return -1;
            const uchar low = index > 1 ? 0x80 : *at == 0xe0 ? 0xa0 : *at == 0xf0 ? 0x90 : 0x80;
            const uchar high = index > 1 ? 0xbf : *at == 0xed ? 0x9f : *at == 0xf4 ? 0x8f : 0xbf;
            if (at[index] < low || at[index] > high)
                return 0;
        }
        return length;
    }

    QString convertToUnicode(const char *in, int length, ConverterState *state) const override
    {
        QByteArray bytes;
        for (int index = 0; state && index < state->remainingChars; ++index)
            bytes.append(char(state->state_data[index]));
        bytes.append(in, length);
        if (state)
            state->remainingChars = 0;
        QString text;
        const auto *at = reinterpret_cast<const uchar *>(bytes.constData());
        const uchar *end = at + bytes.size();
        const uchar *start = at;
        const auto takeLetters = [&] {
            text += QString::fromUtf8(reinterpret_cast<const char *>(start), int(at - start));
        };
        while (at < end) {
            const int letter = letterAt(at, end);
            if (letter > 0) {
                at += letter;
                continue;
            }
            takeLetters();
            start = at;
            if (letter < 0 && state && end - at < longest) {
                for (; at < end; ++at)
                    state->state_data[state->remainingChars++] = *at;
            } else {
                text += QChar(ushort(escape + *at++));
            }
            start = at;
        }
        takeLetters();
        return text;
    }

    QByteArray convertFromUnicode(const QChar *in, int length, ConverterState *) const override
    {
        const auto isEscape = [&](int index) {
            const ushort letter = in[index].unicode();
            return letter >= escape + 0x80 && letter <= escape + 0xff &&
                   !(index > 0 && in[index - 1].isHighSurrogate());
        };
        QByteArray bytes;
        int start = 0;
        for (int index = 0; index <= length; ++index) {
            if (index < length && !isEscape(index))
                continue;
            bytes += QString::fromRawData(in + start, index - start).toUtf8();
            if (index < length)
                bytes += char(in[index].unicode() - escape);
            start = index + 1;
        }
        return bytes;
    }
};

} // namespace

void olKeepFileNames()
{
    // The toolkit owns its codecs.
    static QTextCodec *codec = new Codec;
    QTextCodec::setCodecForLocale(codec);
}
