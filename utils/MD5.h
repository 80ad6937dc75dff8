// MD5 digests of texts, memory, streams and files, for checksums (RFC 1321). Not for anything that must be
// safe from forgery.
//
//     MD5DigestToStr(MD5String("abc"))      // "900150983CD24FB0D6963F7D28E17F72"
//     MD5File(u"/dados/tabela.csv"_s)
#pragma once

#include <array>
#include <cstdint>

#include "platform/rtl/Types.h"

class QIODevice;

// The 16 bytes in the order of RFC 1321.
using TMD5Digest = std::array<uint8_t, 16>;

TMD5Digest MD5String(const AnsiString& text);
TMD5Digest MD5Buffer(const void* buffer, uint32_t length);

// Digests the whole contents of an open, seekable stream and leaves its position as it was. EInOutError when
// reading fails.
TMD5Digest MD5Stream(QIODevice& stream);

// EInOutError naming the file and the cause.
TMD5Digest MD5File(const UnicodeString& fileName);

// 32 upper-case hexadecimal digits; both are the same.
AnsiString MD5DigestToStr(const TMD5Digest& digest);
AnsiString MD5Print(const TMD5Digest& digest);

bool MD5DigestCompare(const TMD5Digest& a, const TMD5Digest& b);
