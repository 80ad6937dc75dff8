#include "platform/rtl/IniFile.h"

#include <algorithm>
#include <exception>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/IniDocument.h"
#include "platform/rtl/Strings.h"
#include "platform/rtl/Trim.h"

using fichario::TIniText;

namespace {

bool IsOneLine(QStringView text) {
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) { return c == u'\r' || c == u'\n' || c.isNull(); });
}

bool IsName(QStringView text) {
    return IsOneLine(text) && Trim(text).size() == text.size();
}

void CheckNames(const UnicodeString& section, const UnicodeString& key) {
    const bool goodSection = IsName(section) && !section.contains(u']');
    const bool goodKey = IsName(key) && !key.isEmpty() && !key.contains(u'=') && !key.startsWith(u';') &&
                         !key.startsWith(u'[');
    if (goodSection && goodKey) return;
    throw EConvertError(
        QStringLiteral("'%1' in section '%2' cannot be the name of a setting").arg(key, section));
}

}  // namespace

TIniFile::TIniFile(const UnicodeString& path) : FDocument(fichario::TIniDocument::Open(path)) {}

UnicodeString TIniFile::FileName() const {
    return FDocument->Path();
}

UnicodeString TIniFile::ReadString(QStringView section, QStringView key,
                                   const UnicodeString& defaultValue) const {
    return FDocument->Text().Value(section, key).value_or(defaultValue);
}

int TIniFile::ReadInteger(QStringView section, QStringView key, int defaultValue) const {
    return StrToIntDef(ReadString(section, key, {}), defaultValue);
}

bool TIniFile::ReadBool(QStringView section, QStringView key, bool defaultValue) const {
    return ReadInteger(section, key, defaultValue ? 1 : 0) != 0;
}

double TIniFile::ReadFloat(QStringView section, QStringView key, double defaultValue) const {
    return StrToFloatDef(ReadString(section, key, {}), defaultValue);
}

void TIniFile::WriteString(const UnicodeString& section, const UnicodeString& key,
                           const UnicodeString& value) {
    CheckNames(section, key);
    if (!IsOneLine(value)) {
        throw EConvertError(QStringLiteral("O valor de '%1' não pode ter quebras de linha.").arg(key));
    }
    FDocument->Change([=](TIniText& text) { return text.SetValue(section, key, value); });
}

void TIniFile::WriteInteger(const UnicodeString& section, const UnicodeString& key, int value) {
    WriteString(section, key, IntToStr(value));
}

void TIniFile::WriteBool(const UnicodeString& section, const UnicodeString& key, bool value) {
    WriteString(section, key, value ? QStringLiteral("1") : QStringLiteral("0"));
}

void TIniFile::WriteFloat(const UnicodeString& section, const UnicodeString& key, double value) {
    WriteString(section, key, FloatToStr(value));
}

void TIniFile::DeleteKey(const UnicodeString& section, const UnicodeString& key) {
    FDocument->Change([=](TIniText& text) { return text.DeleteKey(section, key); });
}

void TIniFile::EraseSection(const UnicodeString& section) {
    FDocument->Change([=](TIniText& text) { return text.EraseSection(section); });
}

bool TIniFile::SectionExists(QStringView section) const {
    return FDocument->Text().HasSection(section);
}

bool TIniFile::ValueExists(QStringView section, QStringView key) const {
    return FDocument->Text().Value(section, key).has_value();
}

void TIniFile::ReadSection(QStringView section, TStrings& keys) const {
    keys.Assign(FDocument->Text().Keys(section));
}

void TIniFile::ReadSections(TStrings& sections) const {
    sections.Assign(FDocument->Text().Sections());
}

TIniUpdate::TIniUpdate(TIniFile& file) : FDocument(file.FDocument), FExceptions(std::uncaught_exceptions()) {
    FDocument->BeginUpdate();
}

TIniUpdate::~TIniUpdate() noexcept(false) {
    FDocument->EndUpdate(std::uncaught_exceptions() == FExceptions);
}
