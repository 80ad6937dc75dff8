// The parameters of one execution: each value goes to the server as the kind it has, and the server brings it
// to the kind described.
//
//     InputMessage input(attachment, statement.Inputs(), values);
//     if (input.Misfit()) …                    // a text that its place cannot hold
//     if (!input.Casts().empty()) …            // the server would change a value; see BoundStatement.h
#pragma once
#include <optional>
#include <QVarLengthArray>
#include "platform/data/firebird/Columns.h"
#include "platform/data/firebird/Statement.h"
#include "platform/data/ParamScanner.h"
#include "platform/rtl/Variant.h"

namespace Firebird {
class IMetadataBuilder;
}

namespace fichario {

// A value, which must outlive this, and the kind it shall be sent as; ftUnknown: its own.
struct InputValue {
    InputValue(const Variant& value, TFieldType type = ftUnknown) : Type(type), FValue(&value) {}
    InputValue(Variant&& value, TFieldType type = ftUnknown) = delete;
    const Variant& Value() const { return *FValue; }

    TFieldType Type;

  private:
    const Variant* FValue;
};

// A text, or bytes, that its place cannot hold.
struct Misfit {
    size_t Place;             // from 0
    UnicodeString Character;  // the character that the character set lacks; empty: it is too long
    int Limit;                // the characters that fit
};

// Holds the message of most tables without asking for memory.
using MessageBytes = QVarLengthArray<uint8_t, 512>;

class InputMessage {
  public:
    // `values` as many as `described`, else EDatabaseError. A text for a number or date is read by
    // FormatSettings: EConvertError when it is none, and for what is no number or no date of the server's.
    InputMessage(Attachment& attachment, const ColumnList& described, const std::vector<InputValue>& values);
    ~InputMessage();
    InputMessage(const InputMessage&) = delete;
    InputMessage& operator=(const InputMessage&) = delete;

    const std::optional<fichario::Misfit>& Misfit() const { return FMisfit; }
    // The types that values need where the place as described would change or not hold them.
    const std::vector<ParamCast>& Casts() const { return FCasts; }

    // Writes blobs in `transaction` and lays the message out. Statement and cursor call it before they
    // execute.
    void Build(const Statement& statement, Transaction& transaction);
    // Null without parameters; may be the statement's own.
    Firebird::IMessageMetadata* Format() const { return FFormat; }
    void* Bytes() { return FBytes.empty() ? nullptr : FBytes.data(); }

  private:
    static constexpr unsigned kBlobType = 520;

    // A value ready for the wire.
    struct Part {
        unsigned Type = 0;  // the client's number; 0: as described, which is right for null
        int Scale = 0;
        QByteArray Bytes;
        bool Null = true;
        bool Blob = false;     // Bytes go into a blob whose identity is sent
        bool Foreign = false;  // a text for a place that has no character set

        static Part Of(unsigned type, const QByteArray& bytes) {
            return {type, 0, bytes, false, false, false};
        }
        static Part OfBlob(const QByteArray& bytes) { return {kBlobType, 0, bytes, false, true, false}; }
    };

    Part PartOf(size_t place, const ColumnInfo& described, const InputValue& value);
    Part NumberPart(size_t place, const ColumnInfo& described, const Variant& number);
    Part TextPart(size_t place, const ColumnInfo& described, const UnicodeString& text);
    Part BytesPart(size_t place, const ColumnInfo& described, const QByteArray& bytes);
    void NeedCast(size_t place, const UnicodeString& type);
    void SetTypes(Firebird::ThrowStatusWrapper& status, Firebird::IMetadataBuilder& builder);
    void Lay(Firebird::ThrowStatusWrapper& status);

    Attachment& FAttachment;
    bool FPlain = false;  // laid out in the statement's own format; there are no parts
    std::vector<Part> FParts;
    std::optional<fichario::Misfit> FMisfit;
    std::vector<ParamCast> FCasts;
    Firebird::IMessageMetadata* FFormat = nullptr;
    MessageBytes FBytes;
};

}  // namespace fichario
