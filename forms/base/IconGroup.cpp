#include "forms/base/IconGroup.h"

#include <optional>
#include <QtEndian>

namespace {

constexpr uint32_t kIcon = 3;
constexpr uint32_t kIconGroup = 14;
constexpr uint32_t kSubdirectory = 0x80000000u;
constexpr int kResourceDirectory = 2;  // among the data directories
constexpr int kGroupHeader = 6;
constexpr int kGroupEntry = 14;
constexpr int kFileEntry = 16;

// The program's bytes; what lies outside reads as 0.
class TProgram {
  public:
    explicit TProgram(const QByteArray& bytes) : FBytes(bytes) {
        const uint32_t header = U32(0x3C);
        if (U32(header) != 0x00004550) return;  // "PE", two zeros
        const uint32_t optional = header + 24;
        FSections = optional + U16(header + 20);
        FSectionCount = U16(header + 6);
        const uint32_t directories = optional + (U16(optional) == 0x20B ? 112 : 96);
        FResources = Offset(U32(directories + 8 * kResourceDirectory));
    }

    // The resource of that type and number (any number: the first), in its first language.
    QByteArray Resource(uint32_t type, std::optional<uint32_t> id) const {
        const uint32_t byType = Below(0, type);
        const uint32_t byName = byType ? Below(byType, id) : 0;
        const uint32_t data = byName ? Entry(byName, std::nullopt) : 0;
        if (!data || (data & kSubdirectory)) return {};
        const uint32_t at = FResources + data;
        const uint32_t start = Offset(U32(at));
        const uint32_t size = U32(at + 4);
        return start && size <= uint32_t(FBytes.size()) ? FBytes.mid(start, size) : QByteArray();
    }

  private:
    uint16_t U16(uint64_t at) const {
        return at + 2 <= uint64_t(FBytes.size()) ? qFromLittleEndian<uint16_t>(FBytes.constData() + at) : 0;
    }
    uint32_t U32(uint64_t at) const {
        return at + 4 <= uint64_t(FBytes.size()) ? qFromLittleEndian<uint32_t>(FBytes.constData() + at) : 0;
    }

    // Where in the file an address of the loaded program lies; 0: nowhere.
    uint32_t Offset(uint32_t address) const {
        for (uint32_t i = 0; i < FSectionCount; ++i) {
            const uint32_t section = FSections + 40 * i;
            const uint32_t start = U32(section + 12);
            if (address >= start && address - start < U32(section + 16))
                return address - start + U32(section + 20);
        }
        return 0;
    }

    // The entry with `id` (any: the first) of the directory at `directory`, which counts from the resources.
    uint32_t Entry(uint32_t directory, std::optional<uint32_t> id) const {
        if (!FResources) return 0;
        const uint32_t at = FResources + directory;
        const int count = U16(at + 12) + U16(at + 14);
        for (int i = 0; i < count; ++i) {
            if (!id || U32(at + 16 + 8 * i) == *id) return U32(at + 20 + 8 * i);
        }
        return 0;
    }

    // The directory below that entry; 0: none.
    uint32_t Below(uint32_t directory, std::optional<uint32_t> id) const {
        const uint32_t entry = Entry(directory, id);
        return entry & kSubdirectory ? entry & ~kSubdirectory : 0;
    }

    const QByteArray& FBytes;
    uint32_t FSections = 0;
    uint32_t FSectionCount = 0;
    uint32_t FResources = 0;
};

void AppendU32(QByteArray& to, uint32_t value) {
    char bytes[4];
    qToLittleEndian(value, bytes);
    to.append(bytes, 4);
}

}  // namespace

// The group lists its pictures by number; the file lists them by place.
QByteArray IconFileOfProgram(const QByteArray& program) {
    const TProgram reader(program);
    const QByteArray group = reader.Resource(kIconGroup, std::nullopt);
    const int count = group.size() < kGroupHeader ? 0 : qFromLittleEndian<uint16_t>(group.constData() + 4);
    if (count == 0 || group.size() < kGroupHeader + count * kGroupEntry) return {};
    QByteArray directory = group.left(kGroupHeader);
    QByteArray pictures;
    for (int i = 0; i < count; ++i) {
        const QByteArray entry = group.mid(kGroupHeader + i * kGroupEntry, kGroupEntry);
        const QByteArray picture =
            reader.Resource(kIcon, qFromLittleEndian<uint16_t>(entry.constData() + 12));
        directory += entry.left(8);
        AppendU32(directory, uint32_t(picture.size()));
        AppendU32(directory, uint32_t(kGroupHeader + count * kFileEntry + pictures.size()));
        pictures += picture;
    }
    return directory + pictures;
}
