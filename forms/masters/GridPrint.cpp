#include "forms/masters/GridPrint.h"

#include <optional>
#include <QFile>
#include <QFontMetrics>

#include "forms/browse/UGrid_Master.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/IniFile.h"
#include "platform/rtl/NumberText.h"
#include "platform/system/Paths.h"
#include "utils/funcoes/Sistema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMostLetters = 50;
const UnicodeString kPrintArgument = u"-o528"_s;  // the module's number follows at once

// Nothing for fields of other kinds.
std::optional<UnicodeString> DisplayFormatOf(const TField* field) {
    if (auto* number = dynamic_cast<const TNumericField*>(field)) return number->DisplayFormat();
    if (auto* date = dynamic_cast<const TDateTimeField*>(field)) return date->DisplayFormat();
    if (auto* stamp = dynamic_cast<const TSQLTimeStampField*>(field)) return stamp->DisplayFormat();
    return std::nullopt;
}

void WriteColumn(TIniFile& file, TFrmGrid_Master& form, int index) {
    const TColumn* column = form.DBGrd->Columns()[index];
    const TField* field = column->Field();
    const UnicodeString section = u"FIELD_%1"_s.arg(index, 2, 10, QLatin1Char('0'));
    file.WriteString(section, u"FieldName"_s, column->FieldName());
    file.WriteString(section, u"DisplayLabel"_s, form.GetColumnTitle(index));
    if (const auto format = DisplayFormatOf(field)) file.WriteString(section, u"DisplayFormat"_s, *format);
    file.WriteInteger(section, u"DisplayWidth"_s,
                      WidthInLetters(QFontMetrics(form.DBGrd->Font()), column->Width()));
    if (field && !field->EditMask().isEmpty()) file.WriteString(section, u"EditMask"_s, field->EditMask());
    file.WriteBool(section, u"Visible"_s, column->Visible());
}

}  // namespace

int WidthInLetters(const QFontMetrics& metrics, int width) {
    int count = 1;
    while (count < kMostLetters && metrics.horizontalAdvance(UnicodeString(count, u'A')) <= width) ++count;
    return count;
}

void WritePrintDefinition(TFrmGrid_Master& form, bool landscape, const UnicodeString& path) {
    QFile::remove(path);
    TIniFile file(path);
    const TIniUpdate update(file);
    const int count = form.DBGrd->Columns().Count();
    file.WriteString(u"INFORMATION"_s, u"Name"_s, form.Caption());
    file.WriteInteger(u"INFORMATION"_s, u"Model"_s, landscape ? 1 : 0);
    file.WriteInteger(u"INFORMATION"_s, u"Count"_s, count);
    for (int i = 0; i < count; ++i) WriteColumn(file, form, i);
}

void PrintGrid(TFrmGrid_Master& form, bool landscape) {
    const UnicodeString rows = JoinPath(ProgramFolder(), kPrintRows);
    const UnicodeString definition = JoinPath(ProgramFolder(), kPrintDefinition);
    QFile::remove(rows);
    QFile::remove(definition);
    form.MainDS->DataSet()->SaveToFile(rows);
    WritePrintDefinition(form, landscape, definition);
    OpenExec(JoinPath(ProgramFolder(), kPrintProgram), kPrintArgument + IntToStr(form.Module->Number()));
}
