#include "utils/MD5.h"

#include <algorithm>
#include <cerrno>
#include <QCryptographicHash>
#include <QFile>
#include <vector>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 kBlock = 1 << 16;

TMD5Digest DigestOf(const QByteArray& result) {
    TMD5Digest digest;
    std::copy(result.begin(), result.end(), digest.begin());
    return digest;
}

// Feeds what is left of the stream; false when reading fails.
bool Feed(QCryptographicHash& hash, QIODevice& stream) {
    std::vector<char> block(kBlock);
    for (;;) {
        const qint64 read = stream.read(block.data(), kBlock);
        if (read < 0) return false;
        if (read == 0) return true;
        hash.addData(QByteArrayView(block.data(), read));
    }
}

}  // namespace

TMD5Digest MD5String(const AnsiString& text) {
    return DigestOf(QCryptographicHash::hash(text, QCryptographicHash::Md5));
}

TMD5Digest MD5Buffer(const void* buffer, uint32_t length) {
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(QByteArrayView(static_cast<const char*>(buffer), length));
    return DigestOf(hash.result());
}

TMD5Digest MD5Stream(QIODevice& stream) {
    const qint64 position = stream.pos();
    QCryptographicHash hash(QCryptographicHash::Md5);
    const bool read = stream.seek(0) && Feed(hash, stream);
    stream.seek(position);
    if (!read) throw EInOutError(u"Não foi possível ler os dados: %1"_s.arg(stream.errorString()), EIO);
    return DigestOf(hash.result());
}

TMD5Digest MD5File(const UnicodeString& fileName) {
    CheckFileFailure(fileName, foRead);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        RaiseFileError(fileName, foRead, file.exists() ? EACCES : ENOENT);
    return MD5Stream(file);
}

AnsiString MD5DigestToStr(const TMD5Digest& digest) {
    return QByteArray(reinterpret_cast<const char*>(digest.data()), qsizetype(digest.size()))
        .toHex()
        .toUpper();
}

AnsiString MD5Print(const TMD5Digest& digest) {
    return MD5DigestToStr(digest);
}

bool MD5DigestCompare(const TMD5Digest& a, const TMD5Digest& b) {
    return a == b;
}
