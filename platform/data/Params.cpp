#include "platform/data/Params.h"

#include <algorithm>
#include "platform/data/Errors.h"

using namespace Qt::Literals::StringLiterals;

void TFDParam::Set(TFieldType type, const Variant& value) {
    FDataType = type;
    FValue = value;
}

void TFDParam::SetAsString(const UnicodeString& text) {
    Set(ftString, text);
}

int TFDParam::AsInteger() const {
    return IsNull() ? 0 : FValue.ToInt();
}

void TFDParam::SetAsInteger(int value) {
    Set(ftInteger, value);
}

int64_t TFDParam::AsLargeInt() const {
    return IsNull() ? 0 : FValue.ToInt64();
}

void TFDParam::SetAsLargeInt(int64_t value) {
    Set(ftLargeint, value);
}

double TFDParam::AsFloat() const {
    return IsNull() ? 0 : FValue.ToDouble();
}

void TFDParam::SetAsFloat(double value) {
    Set(ftFloat, value);
}

Currency TFDParam::AsCurrency() const {
    return IsNull() ? Currency{} : FValue.ToCurrency();
}

void TFDParam::SetAsCurrency(Currency value) {
    Set(ftBCD, value);
}

TDateTime TFDParam::AsDateTime() const {
    return IsNull() ? TDateTime() : FValue.ToDateTime();
}

void TFDParam::SetAsDate(TDateTime value) {
    Set(ftDate, DateOf(value));
}

void TFDParam::SetAsDateTime(TDateTime value) {
    Set(ftTimeStamp, value);
}

bool TFDParam::AsBoolean() const {
    return !IsNull() && FValue.ToBool();
}

void TFDParam::SetAsBoolean(bool value) {
    Set(ftBoolean, value);
}

TFDParam* TFDParams::FindParam(const UnicodeString& name) const {
    for (const auto& param : FParams) {
        if (param->Name().compare(name, Qt::CaseInsensitive) == 0) return param.get();
    }
    return nullptr;
}

TFDParam* TFDParams::ParamByName(const UnicodeString& name) const {
    if (TFDParam* param = FindParam(name)) return param;
    throw EDatabaseError(u"Parameter '%1' not found"_s.arg(name));
}

void TFDParams::SetNames(const TStringArray& names) {
    std::vector<std::unique_ptr<TFDParam>> kept;
    for (const UnicodeString& name : names) {
        const auto same = std::find_if(FParams.begin(), FParams.end(), [&](const auto& param) {
            return param && param->Name().compare(name, Qt::CaseInsensitive) == 0;
        });
        kept.push_back(same == FParams.end() ? std::make_unique<TFDParam>(name) : std::move(*same));
    }
    FParams = std::move(kept);
}
