// The rows of a dataset in a file, with their types, nulls and exact decimals.
//
//     query->SaveToFile(u"/dados/repvw.dat"_s);            // all rows, in their order
//
//     TRowsReader reader(u"/dados/repvw.dat"_s);           // row by row, so that any number of them fits
//     std::vector<Variant> row;
//     while (reader.Next(row)) Print(row);
//
// A stored text that cannot be read is written as "(ilegível)", as lists show it.
//
// The file, version 1; numbers have their low byte first, a text is its length in bytes (32 bits) and UTF-8:
//
//     "FICHROWS"  version (16 bits)  rows (64 bits)  columns (16 bits)
//     for each column  name (text)  kind (8 bits, a letter)  size (32 bits)
//     for each row     one bit for each column, low bit of the first byte first: set when the value is null;
//                      then the values that are not null
//     "END."
//
//     kind                                          value
//     T C M   text, text of fixed length, memo      text
//     H I L   whole numbers of 16, 32, 64 bits      64 bits
//     N       exact decimal, `size` places          64 bits, in units of the last place
//     F       number with a fraction                64 bits, IEEE 754
//     D O S   date, time, both                      64 bits, IEEE 754: days since 30/12/1899
//     B       boolean                               8 bits
//     X       bytes                                 length (32 bits) and bytes
#pragma once

#include <QDataStream>
#include <QFile>
#include <vector>

#include "platform/data/DataTypes.h"
#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

struct TRowsColumn {
    UnicodeString Name;
    TFieldType Type = ftString;
    int Size = 0;  // texts: characters; exact decimals: places
    bool operator==(const TRowsColumn&) const = default;
};

class TRowsWriter {
  public:
    // EInOutError.
    TRowsWriter(const UnicodeString& path, std::vector<TRowsColumn> columns, int64_t rows);

    // One value of the column's kind, or null, for each column.
    void Add(const std::vector<Variant>& row);
    // After as many rows as were announced. EInOutError with the cause; the old file is then untouched, as it
    // is when the writer ends without it.
    void Finish();

  private:
    void Write(const TRowsColumn& column, const Variant& value);

    UnicodeString FPath;
    TFileDraft FDraft;
    QFile FFile;
    QDataStream FStream;
    std::vector<TRowsColumn> FColumns;
};

class TRowsReader {
  public:
    // EInOutError when the file cannot be read; Exception, in Portuguese, when it is of another kind, of a
    // newer version or damaged.
    explicit TRowsReader(const UnicodeString& path);

    const std::vector<TRowsColumn>& Columns() const { return FColumns; }
    int64_t Rows() const { return FRows; }
    // The next row's values; false behind the last one. Exception when the file is damaged.
    bool Next(std::vector<Variant>& row);
    // Before the first row again. The reader goes on with the file it has opened, even when another one has
    // taken its place.
    void First();

  private:
    void ReadHead();
    Variant Read(const TRowsColumn& column);
    QByteArray ReadBytes();
    void Require(bool right) const;

    UnicodeString FPath;
    QFile FFile;
    QDataStream FStream;
    std::vector<TRowsColumn> FColumns;
    int64_t FRows = 0;
    int64_t FDone = 0;
    int64_t FStart = 0;  // where the rows begin in the file
    int64_t FSize = 0;   // of the file; asking the system for every text would take longer than reading it
};
