// Texts on their way to and from the server: bytes in the connection's character set.
#pragma once
#include <optional>
#include <QByteArray>
#include <QStringView>
#include "platform/rtl/Types.h"

namespace fichario {

// ISO8859_1 counts as Windows-1252: databases filled by Windows programs hold its signs in the bytes 80 to
// 9F. Brought into UTF-8 by the server those signs are controls: Utf8Signs reads them as signs again.
enum class TextEncoding : uint8_t { Windows1252, Utf8, Utf8Signs };

// The bytes, or nothing when the set lacks a character or the text is no valid UTF-16.
std::optional<QByteArray> EncodeText(TextEncoding encoding, QStringView text);

// The text, or nothing when the bytes are no valid UTF-8; every byte is a character of Windows-1252.
std::optional<UnicodeString> DecodeExact(TextEncoding encoding, QByteArrayView bytes);

// The text; never fails: what is no character becomes U+FFFD.
UnicodeString DecodeText(TextEncoding encoding, QByteArrayView bytes);

// A name or a part of a message. The server brings into the connection's set what it keeps as UTF-8; over one
// without a set that stays UTF-8, and a text raised by a trigger comes in the bytes that its author's
// connection had.
UnicodeString DecodeName(QByteArrayView bytes);

// The first character that the set cannot hold, whole even outside the basic plane; empty when all can.
UnicodeString FirstForeign(TextEncoding encoding, QStringView text);

}  // namespace fichario
