// Light scrambling of passwords and files: it keeps a settings file from being read over a shoulder. There is
// no key, so it is no protection against anybody who wants to know.
//
//     AnsiString stored = EncriptPass("segredo");      // 204 hexadecimal digits, different each time
//     DecriptPass(stored)                               // "segredo"
//
// The layout is kept as stored texts have it, with what that means for long passwords: from 100 bytes on
// there is no filler, a password of exactly 100 comes back as its last 99, longer ones do not come back.
#pragma once

#include "platform/rtl/Types.h"

// Two upper-case hexadecimal digits for each byte of the record (the length byte, random filler up to 102
// bytes, the password), each less 21. Of a record longer than 255 bytes only the first (length mod 256) are
// written.
AnsiString EncriptPass(const AnsiString& password);

// The password; empty for a text that is none of EncriptPass. An odd last digit is ignored. Never throws.
AnsiString DecriptPass(const AnsiString& text) noexcept;

// Every byte plus 21, and less 21, modulo 256.
AnsiString Criptografa(const AnsiString& bytes);
AnsiString Descriptografa(const AnsiString& bytes);

// Replaces the file's contents by Criptografa of them. The file is deleted before it is written anew.
// EInOutError.
void EncriptFile(const UnicodeString& fileName);

// Writes Descriptografa of `source` to `destination`, which is deleted first. EInOutError.
void DecriptFile(const UnicodeString& source, const UnicodeString& destination);
