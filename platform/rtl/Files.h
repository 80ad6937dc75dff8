// Whole files, read and written safely, and the seam where tests make a file operation fail.
//
//     WriteWholeFile(path, bytes);     // a reader sees the old contents or the new, never a half
//     SetFileFailure([](auto& path, TFileOperation) { return std::optional(ENOSPC); });   // in a test
#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <QByteArray>
#include <QByteArrayView>
#include "platform/rtl/Types.h"

enum TFileOperation { foRead, foWrite, foDelete, foCreateFolder };

// The file's bytes. Throws EInOutError naming the file and the cause.
QByteArray ReadWholeFile(const UnicodeString& path);

// Writes a new file beside the old one, flushes it and renames it over. Throws EInOutError naming the file
// and the cause; the old contents are then untouched.
void WriteWholeFile(const UnicodeString& path, QByteArrayView bytes);

// What tells one state of a file from another without reading it. A missing file has the default stamp.
struct TFileStamp {
    int64_t Modified = 0;  // nanoseconds
    int64_t Size = -1;     // bytes
    uint64_t Identity = 0;
    bool operator==(const TFileStamp&) const = default;
};
TFileStamp FileStamp(const UnicodeString& path);

// The Portuguese name of a system error number (errno): "acesso negado".
UnicodeString SystemErrorText(int errorCode);

// Throws the EInOutError of a failed operation: "Não foi possível gravar o arquivo '...': disco cheio."
[[noreturn]] void RaiseFileError(const UnicodeString& path, TFileOperation operation, int errorCode);

// Asked before every file operation of the package; a number (errno) in the answer makes the operation fail
// with it. Null switches it off. Returns the one in use before.
using TFileFailure = std::function<std::optional<int>(const UnicodeString& path, TFileOperation operation)>;
TFileFailure SetFileFailure(TFileFailure failure);

// For code that does a file operation of its own: throws when the seam says that it fails.
void CheckFileFailure(const UnicodeString& path, TFileOperation operation);
