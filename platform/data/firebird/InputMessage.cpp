#include "platform/data/firebird/InputMessage.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include "platform/data/firebird/Blob.h"
#include "platform/data/firebird/Casts.h"
#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/InputValues.h"
#include "platform/data/firebird/PlainMessage.h"
#include "platform/data/firebird/WireTime.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

constexpr qsizetype kLongestText = 32000;  // longer ones go through a blob

template <class T>
QByteArray BytesOf(const T& value) {
    return QByteArray(reinterpret_cast<const char*>(&value), sizeof value);
}

QByteArray Counted(const QByteArray& text) {
    return BytesOf(static_cast<uint16_t>(text.size())) + text;
}

struct TimeBytes {
    unsigned Type;
    QByteArray Bytes;
};

TimeBytes TimeBytesOf(WireKind kind, TDateTime value) {
    if (!IsWireDate(value))
        throw EConvertError(u"'%1' não é uma data e hora válida."_s.arg(Variant(value.Value).ToText()));
    const WireStamp stamp = ToWire(value);
    if (kind == WireKind::Date) return {SQL_TYPE_DATE, BytesOf(stamp.Days)};
    if (kind == WireKind::Time) return {SQL_TYPE_TIME, BytesOf(stamp.Ticks)};
    return {SQL_TIMESTAMP, BytesOf(stamp)};
}

// Pairs of surrogates are one character to the server.
qsizetype CharactersIn(QStringView text) {
    return std::count_if(text.begin(), text.end(), [](QChar c) { return !c.isLowSurrogate(); });
}

bool IsTooLong(const ColumnInfo& described, const UnicodeString& text, const QByteArray& bytes) {
    if (IsText(described.Kind)) return CharactersIn(text) > described.Characters;
    return described.Kind != WireKind::Blob && bytes.size() > kLongestText;
}

int LimitOf(const ColumnInfo& described) {
    return IsText(described.Kind) ? described.Characters : static_cast<int>(kLongestText);
}

}  // namespace

InputMessage::InputMessage(Attachment& attachment, const ColumnList& described,
                           const std::vector<InputValue>& values)
    : FAttachment(attachment) {
    if (described.size() != values.size()) {
        throw EDatabaseError(u"The statement has %1 parameters, %2 values were given"_s.arg(described.size())
                                 .arg(values.size()));
    }
    FPlain = LayPlain(described, values, FBytes);
    if (FPlain) return;
    for (size_t i = 0; i < values.size(); ++i) FParts.push_back(PartOf(i, described[i], values[i]));
}

InputMessage::~InputMessage() {
    if (FFormat && !FPlain) FFormat->release();
}

InputMessage::Part InputMessage::TextPart(size_t place, const ColumnInfo& described,
                                          const UnicodeString& text) {
    const std::optional<QByteArray> bytes = EncodeText(described.Encoding, text);
    const bool blob = described.Kind == WireKind::Blob;
    if (!bytes) {
        FMisfit = fichario::Misfit{place, FirstForeign(described.Encoding, text), 0};
    } else if (IsTooLong(described, text, *bytes)) {
        FMisfit = fichario::Misfit{place, {}, LimitOf(described)};
        if (IsText(described.Kind)) NeedCast(place, CastOfText(described, CharactersIn(text)));
    } else if (described.Kind == WireKind::NullTest) {
        return Part::Of(0, {});
    } else if (blob && bytes->size() > kLongestText) {
        return Part::OfBlob(*bytes);
    } else {
        Part part = Part::Of(SQL_VARYING, Counted(*bytes));
        part.Foreign = !HasCharacterSet(described);
        return part;
    }
    return {};
}

InputMessage::Part InputMessage::BytesPart(size_t place, const ColumnInfo& described,
                                           const QByteArray& bytes) {
    if (described.Kind == WireKind::Blob) return Part::OfBlob(bytes);
    const qsizetype most = IsText(described.Kind) ? described.Length : kLongestText;
    if (bytes.size() <= most) return Part::Of(SQL_VARYING, Counted(bytes));
    FMisfit = fichario::Misfit{place, {}, LimitOf(described)};
    return {};
}

InputMessage::Part InputMessage::NumberPart(size_t place, const ColumnInfo& described,
                                            const Variant& number) {
    const bool isFloat = number.Kind() == vkFloat;
    if (isFloat && !std::isfinite(number.ToDouble()))
        throw EConvertError(u"'%1' não é um número válido."_s.arg(number.ToText()));
    NeedCast(place, CastOfNumber(described, number));
    if (isFloat) return Part::Of(SQL_DOUBLE, BytesOf(number.ToDouble()));
    const Decimal decimal = number.ToDecimal();
    Part part = Part::Of(SQL_INT64, BytesOf(decimal.Unscaled));
    part.Scale = -decimal.Scale;
    return part;
}

void InputMessage::NeedCast(size_t place, const UnicodeString& type) {
    if (!type.isEmpty()) FCasts.push_back({place, type});
}

InputMessage::Part InputMessage::PartOf(size_t place, const ColumnInfo& described, const InputValue& input) {
    const Variant value = MeantValue(described, input);
    if (value.IsNull()) return {};
    if (described.Kind == WireKind::NullTest) return Part::Of(0, {});
    switch (value.Kind()) {
        case vkBoolean: return Part::Of(SQL_BOOLEAN, BytesOf(static_cast<uint8_t>(value.ToBool())));
        case vkInteger:
        case vkFloat:
        case vkCurrency:
        case vkDecimal: return NumberPart(place, described, value);
        case vkDateTime: {
            const TimeBytes time = TimeBytesOf(MeantTimeKind(described, input), value.ToDateTime());
            return Part::Of(time.Type, time.Bytes);
        }
        case vkText: return TextPart(place, described, value.ToText());
        case vkBytes: return BytesPart(place, described, value.ToBytes());
        default: throw EDatabaseError(u"An array cannot be a parameter"_s);
    }
}

void InputMessage::Build(const Statement& statement, Transaction& transaction) {
    if (FPlain) {
        FFormat = FBytes.empty() ? nullptr : statement.InputFormat();
        return;
    }
    for (Part& part : FParts) {
        if (part.Blob) part.Bytes = BytesOf(WriteBlob(FAttachment, transaction, part.Bytes));
    }
    FAttachment.Call(CallKind::Execute, [&](Firebird::ThrowStatusWrapper& status) {
        if (FFormat) FFormat->release();
        FFormat = nullptr;
        Firebird::IMetadataBuilder* builder = statement.InputFormat()->getBuilder(&status);
        try {
            SetTypes(status, *builder);
            FFormat = builder->getMetadata(&status);
        } catch (...) {
            builder->release();
            throw;
        }
        builder->release();
        Lay(status);
    });
}

void InputMessage::SetTypes(Firebird::ThrowStatusWrapper& status, Firebird::IMetadataBuilder& builder) {
    for (unsigned i = 0; i < FParts.size(); ++i) {
        const Part& part = FParts[i];
        if (part.Type == 0) continue;
        const auto length = static_cast<unsigned>(part.Bytes.size());
        builder.setType(&status, i, part.Type | 1u);
        builder.setLength(&status, i, part.Type == SQL_VARYING ? std::max(1u, length - 2) : length);
        builder.setScale(&status, i, part.Scale);
        if (part.Type != SQL_VARYING && part.Type != SQL_BLOB) builder.setSubType(&status, i, 0);
        if (part.Foreign) builder.setCharSet(&status, i, FAttachment.CharacterSet());
    }
}

void InputMessage::Lay(Firebird::ThrowStatusWrapper& status) {
    FBytes.resize(FFormat->getMessageLength(&status));
    std::fill(FBytes.begin(), FBytes.end(), uint8_t{0});
    for (unsigned i = 0; i < FParts.size(); ++i) {
        const Part& part = FParts[i];
        const int16_t null = part.Null ? -1 : 0;
        std::memcpy(FBytes.data() + FFormat->getNullOffset(&status, i), &null, sizeof null);
        if (!part.Bytes.isEmpty()) {
            std::memcpy(FBytes.data() + FFormat->getOffset(&status, i), part.Bytes.constData(),
                        static_cast<size_t>(part.Bytes.size()));
        }
    }
}

}  // namespace fichario
