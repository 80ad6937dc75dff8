#include "utils/funcoes/Senhas.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <QFile>
#include <QRandomGenerator>

#include "platform/rtl/Files.h"

namespace {

constexpr uint8_t kShift = 21;
constexpr int kLongest = 100;       // the first length without filler
constexpr int kRecordText = 102;    // where the password ends, filler and all
constexpr int kFillerValues = 254;  // 1 to 254

AnsiString Shifted(AnsiString bytes, uint8_t by) {
    for (char& byte : bytes) byte = char(uint8_t(byte) + by);
    return bytes;
}

AnsiString Filler(qsizetype length) {
    AnsiString filler;
    for (qsizetype i = length; length < kLongest && i <= kLongest; ++i)
        filler += char(1 + QRandomGenerator::global()->bounded(kFillerValues));
    return filler;
}

std::optional<AnsiString> FromHex(const AnsiString& text) {
    AnsiString bytes;
    for (qsizetype i = 0; i + 1 < text.size(); i += 2) {
        bool valid = false;
        const AnsiString pair = text.mid(i, 2);
        const uint value = pair.toUInt(&valid, 16);
        if (!valid || !isxdigit(uint8_t(pair[0])) || !isxdigit(uint8_t(pair[1]))) return std::nullopt;
        bytes += char(value);
    }
    return bytes;
}

void Replace(const UnicodeString& fileName, const AnsiString& bytes) {
    QFile file(fileName);
    CheckFileFailure(fileName, foWrite);
    if (file.exists() && !file.remove()) RaiseFileError(fileName, foWrite, EACCES);
    WriteWholeFile(fileName, bytes);
}

}  // namespace

AnsiString EncriptPass(const AnsiString& password) {
    AnsiString record(1, char(password.size() % 256));
    record += Filler(password.size());
    record += password;
    return Shifted(record.left(record.size() % 256), uint8_t(-kShift)).toHex().toUpper();
}

AnsiString DecriptPass(const AnsiString& text) noexcept {
    const std::optional<AnsiString> bytes = FromHex(text);
    if (!bytes || bytes->isEmpty()) return {};
    const AnsiString record = Shifted(*bytes, kShift);
    const int length = uint8_t(record[0]);
    return record.sliced(1).mid(std::max(kRecordText - length, 1) - 1, length);
}

AnsiString Criptografa(const AnsiString& bytes) {
    return Shifted(bytes, kShift);
}

AnsiString Descriptografa(const AnsiString& bytes) {
    return Shifted(bytes, uint8_t(-kShift));
}

void EncriptFile(const UnicodeString& fileName) {
    const AnsiString scrambled = Criptografa(ReadWholeFile(fileName));
    Replace(fileName, scrambled);
}

void DecriptFile(const UnicodeString& source, const UnicodeString& destination) {
    const AnsiString bytes = Descriptografa(ReadWholeFile(source));
    Replace(destination, bytes);
}
