#include "platform/data/Field.h"

#include "platform/data/Errors.h"

using namespace Qt::Literals::StringLiterals;

TField* NewField(TComponent* owner, TFieldType type) {
    switch (type) {
        case ftString:
        case ftFixedChar: return new TStringField(owner, type);
        case ftSmallint:
        case ftInteger: return new TIntegerField(owner, type);
        case ftLargeint: return new TLargeintField(owner);
        case ftFloat: return new TFloatField(owner);
        case ftBCD: return new TBCDField(owner);
        case ftDate: return new TDateField(owner);
        case ftTime: return new TTimeField(owner);
        case ftTimeStamp: return new TSQLTimeStampField(owner);
        case ftBoolean: return new TBooleanField(owner);
        case ftMemo: return new TMemoField(owner);
        case ftBlob: return new TBlobField(owner);
        case ftUnknown: break;
    }
    throw EDatabaseError(u"A field needs a known type"_s);
}
