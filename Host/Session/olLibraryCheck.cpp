#include "Session/olLibraryCheck.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdint>
#include <cstring>

#include <link.h>

namespace
{

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olLibraryCheck)
};

template <class T> bool read(QFile &file, std::uint64_t position, T &structure)
{
    return file.seek(qint64(position)) &&
           file.read(reinterpret_cast<char *>(&structure), sizeof structure) == qint64(sizeof structure);
}

bool isWithin(std::uint64_t size, std::uint64_t offset, std::uint64_t length)
{
    return offset <= size && length <= size - offset;
}

bool isWhole(QFile &file, const Header &header)
{
    const auto size = std::uint64_t(file.size());
    if (!isWithin(size, header.e_shoff, std::uint64_t(header.e_shnum) * header.e_shentsize))
        return false;
    for (unsigned index = 0; index < header.e_phnum; ++index) {
        Segment segment;
        if (!read(file, header.e_phoff + std::uint64_t(index) * header.e_phentsize, segment) ||
            !isWithin(size, segment.p_offset, segment.p_filesz))
            return false;
    }
    return true;
}

} // namespace

olResult<> olCheckLibrary(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return olFailure{file.errorString()};
    Header header;
    if (!read(file, 0, header) || std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0)
        return olFailure{Words::tr("it is no library")};
    // Of another kind of machine: that the loader tells best itself.
    const bool isOurs = header.e_ident[EI_CLASS] == (sizeof(void *) == 8 ? ELFCLASS64 : ELFCLASS32) &&
                        header.e_phentsize == sizeof(Segment);
    if (isOurs && !isWhole(file, header))
        return olFailure{Words::tr("its end is missing")};
    return {};
}
