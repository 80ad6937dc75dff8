// The small enumerations that datasets, fields, controls and forms share.
//
//     if (dataSet->State() == dsInsert || dataSet->State() == dsEdit) dataSet->Post();
//     field->ProviderFlags() & pfInKey          // the field is part of the record's key
#pragma once

// The kind of data a field or parameter holds.
enum TFieldType {
    ftUnknown,
    ftString,     // VARCHAR
    ftFixedChar,  // CHAR, without its trailing blanks
    ftSmallint,   // 16 bits
    ftInteger,    // 32 bits
    ftLargeint,   // 64 bits
    ftFloat,      // FLOAT, DOUBLE PRECISION
    ftBCD,        // NUMERIC, DECIMAL: an exact decimal of up to 18 places
    ftDate,
    ftTime,
    ftTimeStamp,
    ftBoolean,
    ftMemo,  // text blob
    ftBlob   // any other blob
};

// What a dataset is doing. Field values can be set in dsEdit and dsInsert only.
enum TDataSetState { dsInactive, dsBrowse, dsEdit, dsInsert, dsSetKey };

// What a field is good for when its record is written; a set of bits.
enum TProviderFlag {
    pfInUpdate = 1,  // written when it changed
    pfInWhere = 2,   // its old value is compared, so that another user's change is noticed
    pfInKey = 4,     // part of the key that finds the record again
    pfHidden = 8
};
using TProviderFlags = int;

// How Locate compares; a set of bits.
enum TLocateOption { loCaseInsensitive = 1, loPartialKey = 2 };
using TLocateOptions = int;

// On which side of its cell or edit a value stands.
enum TAlignment { taLeftJustify, taRightJustify, taCenter };
