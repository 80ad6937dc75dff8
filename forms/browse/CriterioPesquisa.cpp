#include "forms/browse/CriterioPesquisa.h"

#include <algorithm>

#include "platform/data/Field.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double kNoLimit = 1e300;

double Largest(const TSearchInput& input) {
    return input.Largest > 0 ? input.Largest : kNoLimit;
}

UnicodeString NumberText(const TSearchInput& input, const UnicodeString& typed) {
    double value = 0;
    if (!TryStrToFloat(typed.trimmed(), value)) return u"0"_s;
    return FloatToStr(std::clamp(value, -Largest(input), Largest(input)));
}

TSearchCriterion NumberCriterion(const TSearchInput& input) {
    if (!input.Text.isEmpty())
        return {{NumberText(input, input.Second), NumberText(input, input.Text)}, true};
    if (!input.Second.isEmpty()) return {{NumberText(input, input.Second)}, false};
    return {{FloatToStr(-Largest(input)), FloatToStr(Largest(input))}, true};
}

}  // namespace

TSearchKind SearchKindOf(const TField* field) {
    if (dynamic_cast<const TDateTimeField*>(field) || dynamic_cast<const TSQLTimeStampField*>(field))
        return skDate;
    return dynamic_cast<const TNumericField*>(field) ? skNumber : skText;
}

TSearchCriterion MakeCriterion(const TSearchInput& input) {
    switch (input.Kind) {
        case skDate: return {{input.FirstDate, input.LastDate}, true};
        case skNumber: return NumberCriterion(input);
        case skText: break;
    }
    return {{input.PickList ? input.PickedValue : input.Text}, false};
}

UnicodeString SearchOrder(const UnicodeString& before, const UnicodeString& column) {
    return before.trimmed().isEmpty() ? column : before + u", "_s + column;
}

UnicodeString CountText(int count) {
    if (count < 1) return u"Nenhum registro"_s;
    return count == 1 ? u"1 Registro"_s : IntToStr(count) + u" Registros"_s;
}

TPickItem SplitPickItem(const UnicodeString& line) {
    const qsizetype at = line.indexOf(u';');
    if (at < 0) return {line, line};
    return {line.left(at), line.mid(at + 1)};
}
