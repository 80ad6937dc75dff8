// Lists of texts.
//
//     TStringList lines;
//     lines.SetText(u"Host=localhost\r\nUser=SYSDBA"_s);
//     lines.Values(u"host")                                // "localhost"
//
// Indexes count from 0 and must be valid; a wrong one throws EInvalidOperation.
#pragma once
#include <functional>
#include <QStringView>
#include "platform/rtl/Types.h"

// What every list of texts can do; where the texts are kept is the derived class's business.
class TStrings {
  public:
    virtual ~TStrings() = default;
    TStrings() = default;
    TStrings(const TStrings&) = delete;
    TStrings& operator=(const TStrings&) = delete;

    virtual int Count() const = 0;
    UnicodeString Strings(int index) const;
    UnicodeString operator[](int index) const { return Strings(index); }
    void SetStrings(int index, const UnicodeString& text);

    // Add returns the new text's index; Insert puts it before `index` (0 to Count).
    int Add(const UnicodeString& text);
    void Insert(int index, const UnicodeString& text);
    void Delete(int index);
    void Clear();
    void AddStrings(const TStrings& source);

    // Replaces all texts by those of `source`.
    void Assign(const TStrings& source);
    void Assign(const TStringArray& source);

    TStringArray ToArray() const;

    // The first index of the text, case apart, or -1.
    int IndexOf(QStringView text) const;

    // All texts, each followed by CR LF. SetText splits at CR LF, LF or CR; a last line end opens no further
    // line.
    UnicodeString Text() const;
    void SetText(QStringView text);

    // The texts joined by commas; one that is empty or holds blanks, commas or quotes stands in double
    // quotes. Reading takes commas and blanks as separators.
    UnicodeString CommaText() const;
    void SetCommaText(QStringView text);

    // Texts of the form name=value. Names compare case apart; Values of a missing name is empty. SetValue
    // adds a missing name and removes the line when the value is empty.
    UnicodeString Names(int index) const;
    UnicodeString ValueFromIndex(int index) const;
    int IndexOfName(QStringView name) const;
    UnicodeString Values(QStringView name) const;
    void SetValue(const UnicodeString& name, const UnicodeString& value);

    // Between the two (they nest) OnChange waits and comes once, at the last EndUpdate, if anything changed.
    void BeginUpdate();
    void EndUpdate();

    // After every change.
    std::function<void()> OnChange;

  protected:
    virtual const UnicodeString& Get(int index) const = 0;
    virtual void Put(int index, const UnicodeString& text) = 0;
    virtual void InsertAt(int index, const UnicodeString& text) = 0;
    virtual void RemoveAt(int index) = 0;
    virtual void RemoveAll() = 0;

    // What happens after a change; calls OnChange. A control that shows the list repaints here.
    virtual void Changed();

  private:
    void Touch();
    void CheckIndex(int index, int limit) const;

    int FUpdates = 0;
    bool FTouched = false;
};

// Holds one update open for a scope.
class TStringsUpdate {
  public:
    explicit TStringsUpdate(TStrings& strings) : FStrings(strings) { FStrings.BeginUpdate(); }
    ~TStringsUpdate() noexcept(false) { FStrings.EndUpdate(); }
    TStringsUpdate(const TStringsUpdate&) = delete;
    TStringsUpdate& operator=(const TStringsUpdate&) = delete;

  private:
    TStrings& FStrings;
};

// A list that keeps its texts itself.
class TStringList : public TStrings {
  public:
    int Count() const override { return static_cast<int>(FItems.size()); }

  protected:
    const UnicodeString& Get(int index) const override { return FItems[index]; }
    void Put(int index, const UnicodeString& text) override { FItems[index] = text; }
    void InsertAt(int index, const UnicodeString& text) override {
        FItems.insert(FItems.begin() + index, text);
    }
    void RemoveAt(int index) override { FItems.erase(FItems.begin() + index); }
    void RemoveAll() override { FItems.clear(); }

  private:
    TStringArray FItems;
};
