// Settings files: sections in brackets, lines key=value.
//
//     TIniFile ini(path);
//     UnicodeString host = ini.ReadString(u"DATABASE", u"Host", u"localhost");
//     {
//         TIniUpdate update(ini);                       // both writes reach the disk together
//         ini.WriteString(u"DATABASE", u"Host", host);
//         ini.WriteInteger(u"DATABASE", u"Port", 3050);
//     }
//
// Files are in the system code page, or in UTF-8 when they begin with its mark; a value with a character that
// the code page lacks moves its file to UTF-8. Sections and keys compare
// case apart. Comments, order and lines that are no settings stay as they are, byte for byte; a file of
// garbage has no settings and is no error. Blanks around a value and one pair of double quotes around it do
// not belong to it; backslashes, semicolons and commas do. All objects on one path share what was read, and
// read again when the file changed on disk.
//
// Every write is on disk when the call returns: a new file renamed over the old one. Writing throws
// EInOutError with the cause when that fails, and then the settings in memory are as before.
#pragma once
#include <memory>
#include <QStringView>
#include "platform/rtl/Types.h"

class TStrings;

namespace fichario {
class TIniDocument;
}

class TIniFile {
  public:
    // Opens nothing yet: a missing file reads as empty and is made by the first write.
    explicit TIniFile(const UnicodeString& path);

    UnicodeString FileName() const;

    // The value, or the default when the key is missing (a present, empty value is the empty text). Numbers
    // also give the default when the text is none; floats are read and written with FormatSettings. Booleans
    // are stored as 1 and 0, and any number but 0 reads as true.
    UnicodeString ReadString(QStringView section, QStringView key, const UnicodeString& defaultValue) const;
    int ReadInteger(QStringView section, QStringView key, int defaultValue) const;
    bool ReadBool(QStringView section, QStringView key, bool defaultValue) const;
    double ReadFloat(QStringView section, QStringView key, double defaultValue) const;

    // Throw EConvertError for a value with a line break or a name that could not be read back (a section with
    // "]", a key with "=" or beginning as a comment or section, line breaks or outer blanks in either).
    void WriteString(const UnicodeString& section, const UnicodeString& key, const UnicodeString& value);
    void WriteInteger(const UnicodeString& section, const UnicodeString& key, int value);
    void WriteBool(const UnicodeString& section, const UnicodeString& key, bool value);
    void WriteFloat(const UnicodeString& section, const UnicodeString& key, double value);

    // Nothing happens when there is no such key or section.
    void DeleteKey(const UnicodeString& section, const UnicodeString& key);
    void EraseSection(const UnicodeString& section);

    bool SectionExists(QStringView section) const;
    bool ValueExists(QStringView section, QStringView key) const;

    // The section's keys, or the file's sections, in file order, in place of what the list held.
    void ReadSection(QStringView section, TStrings& keys) const;
    void ReadSections(TStrings& sections) const;

  private:
    friend class TIniUpdate;
    std::shared_ptr<fichario::TIniDocument> FDocument;
};

// Several writes as one: they are saved together when the outermost bracket on the path ends, where that may
// throw EInOutError. When an exception ends the bracket, none of them is saved.
class TIniUpdate {
  public:
    explicit TIniUpdate(TIniFile& file);
    ~TIniUpdate() noexcept(false);
    TIniUpdate(const TIniUpdate&) = delete;
    TIniUpdate& operator=(const TIniUpdate&) = delete;

  private:
    std::shared_ptr<fichario::TIniDocument> FDocument;
    int FExceptions;
};
