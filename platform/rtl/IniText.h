// The lines of a settings file and the edits on them, without any disk.
//
//     TIniText text = TIniText::FromBytes("; note\r\n[A]\r\nx=1\r\n");
//     text.SetValue(u"A"_s, u"x"_s, u"2"_s);
//     text.ToBytes();                              // "; note\r\n[A]\r\nx=2\r\n"
//
// A line that is not edited keeps its bytes, whatever they are, as long as the text keeps its encoding.
#pragma once
#include <optional>
#include <QByteArray>
#include <QStringView>
#include <vector>
#include "platform/rtl/Types.h"

namespace fichario {

class TIniText {
  public:
    static TIniText FromBytes(const QByteArray& bytes);
    QByteArray ToBytes() const;

    // The value of the first such key in any section of that name.
    std::optional<UnicodeString> Value(QStringView section, QStringView key) const;
    bool HasSection(QStringView section) const;
    TStringArray Keys(QStringView section) const;
    TStringArray Sections() const;

    // Each answers whether the text changed. SetValue adds the key at the section's end, and the section at
    // the end.
    bool SetValue(const UnicodeString& section, const UnicodeString& key, const UnicodeString& value);
    bool DeleteKey(QStringView section, QStringView key);
    bool EraseSection(QStringView section);

  private:
    enum TKind { ikOther, ikSection, ikSetting };

    struct TLine {
        QByteArray Raw;  // with its line end
        TKind Kind = ikOther;
        UnicodeString Name, Value;
    };

    // Lines from Begin up to End; a heading is the line before Begin, which the lines before any heading
    // lack.
    struct TRange {
        size_t Begin, End;
    };

    TLine Parse(const QByteArray& raw) const;
    TLine Make(const UnicodeString& text);
    UnicodeString Decode(const QByteArray& raw) const;

    std::vector<TRange> Ranges(QStringView section) const;
    std::optional<size_t> Find(QStringView section, QStringView key) const;
    void AddSection(const UnicodeString& section);
    void InsertLine(size_t index, const UnicodeString& text);

    bool FUtf8 = false;
    QByteArray FLineEnd = "\r\n";
    std::vector<TLine> FLines;
};

}  // namespace fichario
