#include "platform/data/Errors.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

EUnreadableText::EUnreadableText(const UnicodeString& label, const UnicodeString& reason)
    : EDatabaseError(u"O texto guardado%1 não pode ser lido: %2."_s.arg(
          label.isEmpty() ? UnicodeString() : u" no campo \"%1\""_s.arg(label),
          reason.isEmpty() ? u"há bytes que não formam caracteres"_s : reason)),
      Reason(reason) {}

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
    error.Table = Table;
    error.Columns = Columns;
    error.SqlState = SqlState;
    error.ConnectionUsable = ConnectionUsable;
    error.BrokenOff = BrokenOff;
    return error;
}
