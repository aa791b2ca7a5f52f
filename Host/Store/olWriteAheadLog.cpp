#include "Store/olWriteAheadLog.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstdint>

namespace
{

// The log's form as SQLite documents it: a header, and frames of a header and a page each.
constexpr int headerSize = 32;
constexpr int frameHeaderSize = 24;
constexpr std::uint32_t magic = 0x377f0682;

std::uint32_t number(const char *bytes) { return qFromBigEndian<std::uint32_t>(bytes); }

/// So is the room for later saves behind the last one; a save that was never finished is zero from some byte on.
bool isZero(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == 0; });
}

/// Runs on from the header through all frames.
class Checksum
{
public:
    explicit Checksum(bool isBigEndian) : m_isBigEndian(isBigEndian) {}

    void add(const char *bytes, int size)
    {
        for (const char *word = bytes; word < bytes + size; word += 8) {
            m_first += read(word) + m_second;
            m_second += read(word + 4) + m_first;
        }
    }

    [[nodiscard]] bool stands(const char *bytes) const
    {
        return number(bytes) == m_first && number(bytes + 4) == m_second;
    }

private:
    [[nodiscard]] std::uint32_t read(const char *word) const
    {
        return m_isBigEndian ? number(word) : qFromLittleEndian<std::uint32_t>(word);
    }

    bool m_isBigEndian;
    std::uint32_t m_first = 0;
    std::uint32_t m_second = 0;
};

} // namespace

bool olWriteAheadLog::isDamaged(const QString &log)
{
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(headerSize);
    // Frames come only after a whole header.
    if (file.size() < headerSize + frameHeaderSize)
        return false;
    Checksum checksum((number(header.constData()) & 1) != 0);
    checksum.add(header, headerSize - 8);
    const auto pageSize = int(number(header.constData() + 8));
    const bool isPossible = pageSize >= 512 && pageSize <= 65536 && (pageSize & (pageSize - 1)) == 0;
    if ((number(header.constData()) & ~1u) != magic || !isPossible ||
        !checksum.stands(header.constData() + headerSize - 8))
        return true;

    bool isSound = true;
    while (true) {
        const QByteArray frame = file.read(frameHeaderSize + pageSize);
        if (frame.size() < frameHeaderSize + pageSize)
            return false;
        // Frames of an earlier use of the file bear other marks, both of them.
        const char *bytes = frame.constData();
        const bool isFirstSame = number(bytes + 8) == number(header.constData() + 16);
        const bool isSecondSame = number(bytes + 12) == number(header.constData() + 20);
        checksum.add(bytes, 8);
        checksum.add(bytes + frameHeaderSize, pageSize);
        isSound = isSound && isFirstSame && isSecondSame && checksum.stands(bytes + 16);
        const bool endsASave = number(bytes + 4) != 0;
        if (!isSound && endsASave && (isFirstSame || isSecondSame))
            return !(isZero(frame.right(8)) && isZero(file.readAll()));
    }
}
