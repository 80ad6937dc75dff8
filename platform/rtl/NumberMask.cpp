#include "platform/rtl/NumberMask.h"

#include <cmath>
#include <vector>
#include "platform/rtl/Digits.h"
#include "platform/rtl/FormatSettings.h"

namespace {

using fichario::TDigits;

// One character of a mask; those that stand for themselves are literal.
struct TToken {
    WideChar Character;
    bool Literal;

    bool IsDigit() const { return !Literal && (Character == u'0' || Character == u'#'); }
    bool Is(WideChar symbol) const { return !Literal && Character == symbol; }
};

// One section: its tokens and what they ask for.
struct TSection {
    std::vector<TToken> Tokens;
    int WholePlaces = 0,
        LeastWhole = 0;  // digit places before the point, and how many of them are always shown
    int Decimals = 0, LeastDecimals = 0;
    bool HasPoint = false, Grouped = false;

    void Add(TToken token) {
        if (token.IsDigit()) AddPlace(token.Character == u'0');
        if (token.Is(u'.')) HasPoint = true;
        if (token.Is(u',')) Grouped = true;
        Tokens.push_back(token);
    }

  private:
    void AddPlace(bool always) {
        if (HasPoint) {
            ++Decimals;
            if (always) LeastDecimals = Decimals;
        } else {
            ++WholePlaces;
            if (always || LeastWhole > 0) ++LeastWhole;
        }
    }
};

std::vector<TSection> ParseMask(QStringView mask) {
    std::vector<TSection> sections(1);
    QChar quote;
    for (const QChar c : mask) {
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            else
                sections.back().Add({c.unicode(), true});
        } else if (c == u'"' || c == u'\'') {
            quote = c;
        } else if (c == u';') {
            sections.emplace_back();
        } else {
            sections.back().Add({c.unicode(), !QStringView(u"0#.,").contains(c)});
        }
    }
    return sections;
}

// Which section a number goes to; an empty one leaves it to the first.
size_t SectionFor(const TDigits& number, const std::vector<TSection>& sections) {
    const size_t wanted = number.IsZero() ? 2 : number.Negative ? 1 : 0;
    return wanted < sections.size() && !sections[wanted].Tokens.empty() ? wanted : 0;
}

class TMaskWriter {
  public:
    TMaskWriter(const TSection& section, const TDigits& number)
        : FSection(section),
          FWhole(number.Whole().rightJustified(section.LeastWhole, '0')),
          FFraction(number.Fraction().leftJustified(section.LeastDecimals, '0')) {}

    UnicodeString Write() {
        for (const TToken& token : FSection.Tokens) WriteToken(token);
        return FText;
    }

  private:
    void WriteToken(const TToken& token) {
        if (token.Literal)
            FText += QChar(token.Character);
        else if (token.IsDigit() && !FBehindPoint)
            WriteWholeUpTo(--FPlacesLeft);
        else if (token.IsDigit())
            WriteDecimal();
        else if (token.Is(u'.') && !FBehindPoint)
            WritePoint();
    }

    // The digits still to write, but for the last `left`: more than one when the number has more than the
    // mask.
    void WriteWholeUpTo(int left) {
        for (; FWholeDone < FWhole.size() - left; ++FWholeDone) {
            const qsizetype behind = FWhole.size() - FWholeDone;
            if (FSection.Grouped && FWholeDone > 0 && behind % 3 == 0)
                FText += QChar(FormatSettings.ThousandSeparator);
            FText += QChar::fromLatin1(FWhole[FWholeDone]);
        }
    }

    void WritePoint() {
        WriteWholeUpTo(0);
        FBehindPoint = true;
        if (!FFraction.isEmpty()) FText += QChar(FormatSettings.DecimalSeparator);
    }

    void WriteDecimal() {
        if (FFractionDone < FFraction.size()) FText += QChar::fromLatin1(FFraction[FFractionDone++]);
    }

    const TSection& FSection;
    QByteArray FWhole, FFraction;
    UnicodeString FText;
    int FPlacesLeft = FSection.WholePlaces;
    qsizetype FWholeDone = 0, FFractionDone = 0;
    bool FBehindPoint = false;
};

UnicodeString FormatDigits(QStringView mask, TDigits number) {
    const std::vector<TSection> sections = ParseMask(mask);
    fichario::RoundDigits(number, sections[SectionFor(number, sections)].Decimals);
    const size_t chosen = SectionFor(number, sections);
    fichario::RoundDigits(number, sections[chosen].Decimals);
    const UnicodeString text = TMaskWriter(sections[chosen], number).Write();
    return number.Negative && chosen == 0 ? u'-' + text : text;
}

// Whether the first section asks for nothing, so that the number is shown plainly.
bool IsPlain(QStringView mask) {
    return mask.isEmpty() || mask.startsWith(u';');
}

}  // namespace

UnicodeString FormatFloat(QStringView mask, long double value) {
    if (IsPlain(mask) || !std::isfinite(value)) return FloatToStr(value);
    return FormatDigits(mask, fichario::DigitsOf(value));
}

UnicodeString FormatDecimal(QStringView mask, const Decimal& value) {
    if (IsPlain(mask)) return value.Trimmed().ToText(FormatSettings.DecimalSeparator);
    return FormatDigits(mask, fichario::DigitsOf(value));
}

UnicodeString FormatCurr(QStringView mask, Currency value) {
    return FormatDecimal(mask, value.ToDecimal());
}
