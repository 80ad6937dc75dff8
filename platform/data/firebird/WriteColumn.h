// A column of a record that is being written, and its values.
#pragma once
#include "platform/data/DataTypes.h"
#include "platform/data/firebird/CharacterSets.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

namespace fichario {

struct WriteColumn {
    int Column = 0;       // in the dataset's rows
    UnicodeString Name;   // the base column
    UnicodeString Label;  // for messages
    TFieldType Type = ftUnknown;
    unsigned CharacterSet = kNoSet;  // of a text column
    Variant Value;                   // now
    Variant OldValue;                // when the edit began; not read for blobs
    bool CanWrite = false;
    bool Write = false;    // goes into the statement
    bool Compare = false;  // its old value must still be there, if it can be asked for
    bool Key = false;
};

}  // namespace fichario
