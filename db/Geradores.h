// Values of the database's generators (sequences), for new keys.
//
//     int key = GetGeneratorID(connection, u"GEN_CLIENTE"_s, 1);
#pragma once
#include "platform/rtl/Types.h"

class TFDCustomConnection;

// The generator's value after adding `increment`; 0 reads it and changes nothing. `generator` is written into
// the statement as it stands. Throws EDatabaseError (unknown generator, lost connection), and EConvertError
// when the value, which then counts as drawn, exceeds an int.
int GetGeneratorID(TFDCustomConnection* connection, const UnicodeString& generator, int increment);
