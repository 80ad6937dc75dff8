// The fields of a dataset, by kind:
//
//     TStringField                CHAR, VARCHAR              fields/TextFields.h
//     TNumericField               numbers                    fields/NumberFields.h
//         TIntegerField           SMALLINT, INTEGER
//         TLargeintField          BIGINT
//         TFloatField             FLOAT, DOUBLE PRECISION
//         TBCDField               NUMERIC, DECIMAL
//     TDateTimeField              DATE and TIME              fields/DateFields.h
//         TDateField, TTimeField
//     TSQLTimeStampField          TIMESTAMP
//     TBooleanField               BOOLEAN                    fields/TextFields.h
//     TBlobField, TMemoField      blobs, text blobs          fields/BlobFields.h
#pragma once
#include "platform/data/fields/BaseField.h"
#include "platform/data/fields/BlobFields.h"
#include "platform/data/fields/DateFields.h"
#include "platform/data/fields/NumberFields.h"
#include "platform/data/fields/TextFields.h"

// A new field of the class for `type`, owned by `owner`. EDatabaseError for ftUnknown.
TField* NewField(TComponent* owner, TFieldType type);
