#include "platform/data/Errors.h"

#include <algorithm>

EFDError::EFDError(const UnicodeString& message, std::vector<int64_t> codes)
    : EDatabaseError(message), FCodes(std::move(codes)) {}

int64_t EFDError::Code() const {
    return FCodes.empty() ? 0 : FCodes.front();
}

bool EFDError::Has(int64_t code) const {
    return std::find(FCodes.begin(), FCodes.end(), code) != FCodes.end();
}

EFDError EFDError::Saying(const UnicodeString& message) const {
    EFDError error(message, FCodes);
    error.ServerText = ServerText;
    error.Constraint = Constraint;
    error.SqlState = SqlState;
    error.ConnectionUsable = ConnectionUsable;
    return error;
}
