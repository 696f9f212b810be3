#include "platform/plugins/SharedObjectFile.h"

#include <QFile>

#include <array>
#include <cstring>
#include <elf.h>
#include <link.h>

namespace kesta {
namespace {

using FileHeader = ElfW(Ehdr);
using ProgramHeader = ElfW(Phdr);

template <class Header> bool ReadHeader(QFile& file, quint64 offset, Header& header)
{
    return offset <= static_cast<quint64>(file.size()) && file.seek(static_cast<qint64>(offset)) &&
           file.read(reinterpret_cast<char*>(&header), sizeof header) == sizeof header;
}

bool EndsInside(const QFile& file, const ProgramHeader& part)
{
    const auto size = static_cast<quint64>(file.size());
    return part.p_offset <= size && part.p_filesz <= size - part.p_offset;
}

} // namespace

std::optional<Message> SharedObjectProblem(const QString& path)
{
    QFile file(path);
    FileHeader header;
    if (!file.open(QIODevice::ReadOnly) || !ReadHeader(file, 0, header) ||
        std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(ProgramHeader))
        return std::nullopt;
    for (int number = 0; number < header.e_phnum; ++number) {
        ProgramHeader part;
        const quint64 place = header.e_phoff + sizeof(ProgramHeader) * static_cast<quint64>(number);
        if (!ReadHeader(file, place, part) || (part.p_type == PT_LOAD && !EndsInside(file, part)))
            return Say("Bundle Code Cut Off", path);
    }
    return std::nullopt;
}

} // namespace kesta
