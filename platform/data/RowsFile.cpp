#include "platform/data/RowsFile.h"

#include <algorithm>
#include <cerrno>

#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray kMark = "FICHROWS"_ba, kEnd = "END."_ba;
constexpr quint16 kVersion = 1;

struct TKind {
    TFieldType Type;
    char Letter;
};
constexpr TKind kKinds[] = {{ftString, 'T'},  {ftFixedChar, 'C'}, {ftMemo, 'M'},      {ftSmallint, 'H'},
                            {ftInteger, 'I'}, {ftLargeint, 'L'},  {ftBCD, 'N'},       {ftFloat, 'F'},
                            {ftDate, 'D'},    {ftTime, 'O'},      {ftTimeStamp, 'S'}, {ftBoolean, 'B'},
                            {ftBlob, 'X'}};

char LetterOf(TFieldType type) {
    for (const TKind& kind : kKinds) {
        if (kind.Type == type) return kind.Letter;
    }
    return 'T';
}

TFieldType TypeOf(char letter) {
    for (const TKind& kind : kKinds) {
        if (kind.Letter == letter) return kind.Type;
    }
    return ftUnknown;
}

void Prepare(QDataStream& stream, QFile& file) {
    stream.setDevice(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

void WriteBytes(QDataStream& stream, const QByteArray& bytes) {
    stream << quint32(bytes.size());
    stream.writeRawData(bytes.constData(), int(bytes.size()));
}

}  // namespace

TRowsWriter::TRowsWriter(const UnicodeString& path, std::vector<TRowsColumn> columns, int64_t rows)
    : FPath(path), FDraft(path), FFile(FDraft.Name()), FColumns(std::move(columns)) {
    CheckFileFailure(path, foWrite);
    errno = 0;
    if (!FFile.open(QIODevice::WriteOnly)) RaiseFileError(path, foWrite, errno ? errno : EACCES);
    Prepare(FStream, FFile);
    FStream.writeRawData(kMark.constData(), int(kMark.size()));
    FStream << kVersion << qint64(rows) << quint16(FColumns.size());
    for (const TRowsColumn& column : FColumns) {
        WriteBytes(FStream, column.Name.toUtf8());
        FStream << quint8(LetterOf(column.Type)) << qint32(column.Size);
    }
}

void TRowsWriter::Add(const std::vector<Variant>& row) {
    QByteArray nulls((qsizetype(FColumns.size()) + 7) / 8, '\0');
    for (size_t i = 0; i < row.size(); ++i) {
        if (row[i].IsNull()) nulls[qsizetype(i / 8)] = char(nulls[qsizetype(i / 8)] | 1 << i % 8);
    }
    FStream.writeRawData(nulls.constData(), int(nulls.size()));
    for (size_t i = 0; i < row.size(); ++i) {
        if (!row[i].IsNull()) Write(FColumns[i], row[i]);
    }
}

void TRowsWriter::Write(const TRowsColumn& column, const Variant& value) {
    switch (column.Type) {
        case ftSmallint:
        case ftInteger:
        case ftLargeint: FStream << qint64(value.ToInt64()); return;
        case ftBCD: FStream << qint64(value.ToDecimal().Rescale(column.Size).Unscaled); return;
        case ftFloat: FStream << value.ToDouble(); return;
        case ftDate:
        case ftTime:
        case ftTimeStamp: FStream << value.ToDateTime().Value; return;
        case ftBoolean: FStream << quint8(value.ToBool()); return;
        case ftBlob: WriteBytes(FStream, value.ToBytes()); return;
        default: WriteBytes(FStream, value.ToText().toUtf8());
    }
}

void TRowsWriter::Finish() {
    FStream.writeRawData(kEnd.constData(), int(kEnd.size()));
    errno = 0;
    const bool written = FStream.status() == QDataStream::Ok && FFile.flush();
    if (!written) RaiseFileError(FPath, foWrite, errno ? errno : ENOSPC);
    FFile.close();
    FDraft.Commit();
}

TRowsReader::TRowsReader(const UnicodeString& path) : FPath(path), FFile(path) {
    CheckFileFailure(path, foRead);
    errno = 0;
    if (!FFile.open(QIODevice::ReadOnly)) RaiseFileError(path, foRead, errno ? errno : EACCES);
    FSize = FFile.size();
    Prepare(FStream, FFile);
    ReadHead();
}

void TRowsReader::ReadHead() {
    const bool ours = FFile.read(kMark.size()) == kMark;
    if (!ours) throw Exception(u"O arquivo '%1' não contém registros gravados pelo programa."_s.arg(FPath));
    quint16 version = 0, columns = 0;
    qint64 rows = 0;
    FStream >> version >> rows >> columns;
    if (version > kVersion)
        throw Exception(u"O arquivo '%1' foi gravado por uma versão mais nova do programa."_s.arg(FPath));
    Require(version > 0);
    FRows = rows;
    for (int i = 0; i < columns; ++i) {
        const UnicodeString name = QString::fromUtf8(ReadBytes());
        quint8 letter = 0;
        qint32 size = 0;
        FStream >> letter >> size;
        FColumns.push_back({name, TypeOf(char(letter)), size});
        Require(FColumns.back().Type != ftUnknown);
    }
    FStart = FFile.pos();
    const int64_t least = std::max(1, (columns + 7) / 8);  // bytes of a row
    Require(rows >= 0 && rows <= FSize / least);
}

void TRowsReader::First() {
    FFile.seek(FStart);
    FStream.resetStatus();
    FDone = 0;
}

void TRowsReader::Require(bool right) const {
    if (right && FStream.status() == QDataStream::Ok) return;
    throw Exception(u"O arquivo '%1' está incompleto ou danificado."_s.arg(FPath));
}

// A length that the rest of the file cannot hold is damage, not a reason to ask for memory.
QByteArray TRowsReader::ReadBytes() {
    quint32 size = 0;
    FStream >> size;
    Require(size <= FSize - FFile.pos());
    QByteArray bytes(qsizetype(size), Qt::Uninitialized);
    Require(FStream.readRawData(bytes.data(), int(size)) == int(size));
    return bytes;
}

bool TRowsReader::Next(std::vector<Variant>& row) {
    row.resize(FColumns.size());
    if (FDone == FRows) {
        Require((FFile.read(kEnd.size()) == kEnd || FColumns.empty()) && FFile.atEnd());
        return false;
    }
    QByteArray nulls((qsizetype(FColumns.size()) + 7) / 8, '\0');
    Require(FStream.readRawData(nulls.data(), int(nulls.size())) == nulls.size());
    for (size_t i = 0; i < row.size(); ++i) {
        const bool null = nulls[qsizetype(i / 8)] >> i % 8 & 1;
        row[i] = null ? Variant::Null() : Read(FColumns[i]);
    }
    ++FDone;
    return true;
}

Variant TRowsReader::Read(const TRowsColumn& column) {
    qint64 whole = 0;
    double number = 0;
    quint8 flag = 0;
    switch (column.Type) {
        case ftSmallint:
        case ftInteger:
        case ftLargeint: FStream >> whole; break;
        case ftBCD:
            FStream >> whole;
            Require(column.Size >= 0 && column.Size <= 18);
            break;
        case ftFloat:
        case ftDate:
        case ftTime:
        case ftTimeStamp: FStream >> number; break;
        case ftBoolean: FStream >> flag; break;
        case ftBlob: return ReadBytes();
        default: return QString::fromUtf8(ReadBytes());
    }
    Require(true);
    switch (column.Type) {
        case ftBCD: return Decimal{whole, column.Size};
        case ftFloat: return number;
        case ftBoolean: return flag != 0;
        case ftDate:
        case ftTime:
        case ftTimeStamp: return TDateTime(number);
        default: return int64_t(whole);
    }
}

// One value that cannot be read must not keep all the others from paper.
Variant TDataSet::SavedValue(int row, int column) const {
    try {
        return RowValue(row, column);
    } catch (const EUnreadableText&) {
        return kUnreadable.toString();
    }
}

void TDataSet::SaveToFile(const UnicodeString& path) {
    CheckActive();
    FetchAll();
    std::vector<TRowsColumn> columns;
    for (const TField* field : FFields)
        columns.push_back({field->FieldName(), field->DataType(), field->Size()});
    const int typed = FState == dsInsert ? FRow : -1;
    TRowsWriter writer(path, std::move(columns), RowCount() - (typed >= 0 ? 1 : 0));
    std::vector<Variant> values(FFields.size());
    for (int row = 0; row < RowCount(); ++row) {
        if (row == typed) continue;
        for (size_t i = 0; i < values.size(); ++i) values[i] = SavedValue(row, static_cast<int>(i));
        writer.Add(values);
    }
    writer.Finish();
}
