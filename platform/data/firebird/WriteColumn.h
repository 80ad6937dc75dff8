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
    Variant OldValue;                // when the edit began; unassigned: not known
    UnicodeString Same;              // the condition that the old value still is there; empty: it need not be
    double Largest = 0;              // number that the column holds; 0: any, or no number
    bool CanWrite = false;
    bool Write = false;  // goes into the statement
    bool Key = false;
    bool Again = false;  // an earlier one is of the same base column
};

}  // namespace fichario
