#include "platform/rtl/Strings.h"

#include <algorithm>
#include <utility>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"

namespace {

UnicodeString Quoted(const UnicodeString& text) {
    UnicodeString doubled = text;
    return u'"' + doubled.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

bool IsSeparator(QChar c) {
    return c <= u' ' || c == u',';
}

bool NeedsQuotes(const UnicodeString& text) {
    return text.isEmpty() ||
           std::any_of(text.begin(), text.end(), [](QChar c) { return IsSeparator(c) || c == u'"'; });
}

void SkipBlanks(QStringView& text) {
    while (!text.isEmpty() && text.front() <= u' ') text = text.sliced(1);
}

// Takes the quoted text that `text` begins with; a missing closing quote ends with the text.
UnicodeString TakeQuoted(QStringView& text) {
    UnicodeString item;
    for (text = text.sliced(1); !text.isEmpty(); text = text.sliced(1)) {
        if (text.front() == u'"') {
            text = text.sliced(1);
            if (!text.startsWith(u'"')) break;
        }
        item += text.front();
    }
    return item;
}

UnicodeString TakeItem(QStringView& text) {
    if (text.startsWith(u'"')) return TakeQuoted(text);
    qsizetype length = 0;
    while (length < text.size() && !IsSeparator(text[length])) ++length;
    const UnicodeString item = text.left(length).toString();
    text = text.sliced(length);
    return item;
}

}  // namespace

UnicodeString TStrings::Strings(int index) const {
    CheckIndex(index, Count());
    return Get(index);
}

void TStrings::SetStrings(int index, const UnicodeString& text) {
    CheckIndex(index, Count());
    Put(index, text);
    Touch();
}

int TStrings::Add(const UnicodeString& text) {
    const int index = Count();
    Insert(index, text);
    return index;
}

void TStrings::Insert(int index, const UnicodeString& text) {
    CheckIndex(index, Count() + 1);
    InsertAt(index, text);
    Touch();
}

void TStrings::Delete(int index) {
    CheckIndex(index, Count());
    RemoveAt(index);
    Touch();
}

void TStrings::Clear() {
    if (Count() == 0) return;
    RemoveAll();
    Touch();
}

void TStrings::AddStrings(const TStrings& source) {
    const TStringArray texts = source.ToArray();
    const TStringsUpdate update(*this);
    for (const UnicodeString& text : texts) Add(text);
}

void TStrings::Assign(const TStrings& source) {
    Assign(source.ToArray());
}

void TStrings::Assign(const TStringArray& source) {
    const TStringsUpdate update(*this);
    Clear();
    for (const UnicodeString& text : source) Add(text);
}

TStringArray TStrings::ToArray() const {
    TStringArray texts;
    texts.reserve(Count());
    for (int i = 0; i < Count(); ++i) texts.push_back(Get(i));
    return texts;
}

int TStrings::IndexOf(QStringView text) const {
    for (int i = 0; i < Count(); ++i) {
        if (SameText(Get(i), text)) return i;
    }
    return -1;
}

UnicodeString TStrings::Text() const {
    UnicodeString text;
    for (int i = 0; i < Count(); ++i) text.append(Get(i)).append(u"\r\n");
    return text;
}

void TStrings::SetText(QStringView text) {
    TStringArray lines;
    for (qsizetype begin = 0; begin < text.size();) {
        qsizetype end = begin;
        while (end < text.size() && text[end] != u'\r' && text[end] != u'\n') ++end;
        lines.push_back(text.sliced(begin, end - begin).toString());
        begin = end + (text.sliced(end).startsWith(u"\r\n") ? 2 : 1);
    }
    Assign(lines);
}

UnicodeString TStrings::CommaText() const {
    UnicodeString text;
    for (int i = 0; i < Count(); ++i) {
        if (i > 0) text += u',';
        text += NeedsQuotes(Get(i)) ? Quoted(Get(i)) : Get(i);
    }
    return text;
}

void TStrings::SetCommaText(QStringView text) {
    TStringArray items;
    SkipBlanks(text);
    while (!text.isEmpty()) {
        items.push_back(TakeItem(text));
        SkipBlanks(text);
        if (!text.startsWith(u',')) continue;
        text = text.sliced(1);
        SkipBlanks(text);
        if (text.isEmpty()) items.emplace_back();
    }
    Assign(items);
}

UnicodeString TStrings::Names(int index) const {
    const UnicodeString line = Strings(index);
    return line.left(std::max<qsizetype>(line.indexOf(u'='), 0));
}

UnicodeString TStrings::ValueFromIndex(int index) const {
    const UnicodeString line = Strings(index);
    const qsizetype sign = line.indexOf(u'=');
    return sign < 0 ? UnicodeString() : line.mid(sign + 1);
}

int TStrings::IndexOfName(QStringView name) const {
    for (int i = 0; i < Count(); ++i) {
        const qsizetype sign = Get(i).indexOf(u'=');
        if (sign >= 0 && SameText(QStringView(Get(i)).left(sign), name)) return i;
    }
    return -1;
}

UnicodeString TStrings::Values(QStringView name) const {
    const int index = IndexOfName(name);
    return index < 0 ? UnicodeString() : ValueFromIndex(index);
}

void TStrings::SetValue(const UnicodeString& name, const UnicodeString& value) {
    const int index = IndexOfName(name);
    if (index >= 0 && value.isEmpty()) {
        Delete(index);
    } else if (index >= 0) {
        SetStrings(index, name + u'=' + value);
    } else if (!value.isEmpty()) {
        Add(name + u'=' + value);
    }
}

void TStrings::BeginUpdate() {
    ++FUpdates;
}

void TStrings::EndUpdate() {
    if (--FUpdates == 0 && std::exchange(FTouched, false)) Changed();
}

void TStrings::Changed() {
    if (OnChange) OnChange();
}

void TStrings::Touch() {
    if (FUpdates > 0)
        FTouched = true;
    else
        Changed();
}

void TStrings::CheckIndex(int index, int limit) const {
    if (index >= 0 && index < limit) return;
    throw EInvalidOperation(QStringLiteral("List index out of bounds (%1)").arg(index));
}
