#include "platform/data/SqlShape.h"

#include <algorithm>
#include "platform/data/Sql.h"
#include "platform/data/SqlLexer.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

bool IsAny(const SqlToken& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&](QStringView word) { return token.Is(word); });
}

}  // namespace

// Reads the words outside all parentheses, one after the other.
class SqlShapeReader {
  public:
    explicit SqlShapeReader(SqlShape& shape) : S(shape) {}

    void Read() {
        SqlLexer lexer(S.FText);
        int depth = 0;
        for (SqlToken token = lexer.Next(); token.Kind != SqlTokenKind::End; token = lexer.Next()) {
            if (token.IsSymbol(u')')) --depth;
            if (token.Kind == SqlTokenKind::Positional) CountParam();
            if (FPart == Part::Columns) TakeItem(token, depth);
            if (depth == 0) Take(token);
            if (token.IsSymbol(u'(')) ++depth;
            if (!token.IsSymbol(u';')) S.FEnd = token.End();
        }
        Finish();
    }

  private:
    enum class Part { Start, Columns, Table, Alias, Sources, Conditions, Tail };

    void CountParam() {
        if (S.FWhere < 0 && S.FConditionsEnd < 0) ++S.FParamsBeforeWhere;
        if (S.FOrder >= 0) FParamInOrder = true;
    }

    void Take(const SqlToken& token) {
        switch (FPart) {
            case Part::Start:
                if (token.Is(u"SELECT")) FPart = Part::Columns;
                if (!token.Is(u"SELECT") && !FStarted && !token.Is(u"WITH")) FPart = Part::Tail;
                FStarted = true;
                break;
            case Part::Columns: TakeColumn(token); break;
            case Part::Table: TakeTable(token); break;
            case Part::Alias: TakeAlias(token); break;
            default: TakeClause(token); break;
        }
    }

    // What the column list's items are.
    void TakeItem(const SqlToken& token, int depth) {
        using Item = SqlShape::Item;
        if (S.FItems.empty()) S.FItems.push_back(Item::Value);
        if (FLimit) {  // FIRST and SKIP are followed by a value
            FLimit = depth > 0 || token.IsSymbol(u'(');
            return;
        }
        if (depth == 0 && IsAny(token, {u"DISTINCT", u"ALL"})) return;
        if (depth == 0 && IsAny(token, {u"FIRST", u"SKIP"})) {
            FLimit = FItemBegins;
        } else if (depth == 0 && token.IsSymbol(u',')) {
            S.FItems.push_back(Item::Value);
            FItemBegins = true;
        } else {
            if (FItemBegins && token.Is(u"SELECT")) S.FItems.back() = Item::Select;
            if (token.IsSymbol(u'*') && depth == 0 && (FItemBegins || FAfterDot))
                S.FItems.back() = Item::Star;
            FItemBegins = FItemBegins && token.IsSymbol(u'(');
        }
        FAfterDot = token.IsSymbol(u'.');
    }

    // A FROM behind DISTINCT belongs to the comparison IS DISTINCT FROM.
    void TakeColumn(const SqlToken& token) {
        if (token.Is(u"FROM") && !FDistinct) {
            S.FFrom = token.Start;
            FPart = Part::Table;
        } else if (FDistinct || IsAny(token, {u"FIRST", u"SKIP"})) {
            S.FPlain = false;
        }
        FLimited = FLimited || IsAny(token, {u"FIRST", u"SKIP"});
        FDistinct = token.Is(u"DISTINCT");
    }

    void TakeTable(const SqlToken& token) {
        if (token.Kind == SqlTokenKind::Word || token.Kind == SqlTokenKind::QuotedName) {
            S.FMainTable = S.FMainAlias = NameOf(token);
        }
        FPart = Part::Alias;
    }

    void TakeAlias(const SqlToken& token) {
        if (token.Is(u"AS") || token.IsSymbol(u')')) return;
        FPart = Part::Sources;
        if (token.IsSymbol(u'(')) S.FMainTable.clear();  // the rows of a procedure
        const bool name = token.Kind == SqlTokenKind::Word || token.Kind == SqlTokenKind::QuotedName;
        if (name && !IsClause(token) && !IsJoin(token)) {
            S.FMainAlias = NameOf(token);
        } else {
            TakeClause(token);
        }
    }

    static bool IsJoin(const SqlToken& token) {
        return IsAny(token, {u"JOIN", u"LEFT", u"RIGHT", u"FULL", u"INNER", u"CROSS", u"NATURAL"});
    }

    static bool IsClause(const SqlToken& token) {
        return IsAny(token, {u"WHERE", u"GROUP", u"HAVING", u"WINDOW", u"PLAN", u"UNION", u"ORDER", u"ROWS",
                             u"OFFSET", u"FETCH", u"FOR", u"WITH"});
    }

    void TakeClause(const SqlToken& token) {
        if (FPart == Part::Sources && (token.IsSymbol(u',') || token.Is(u"JOIN"))) S.FJoin = true;
        if (!IsClause(token)) return;
        if (token.Is(u"WHERE") && FPart == Part::Sources) {
            S.FWhere = token.Start;
            FPart = Part::Conditions;
            return;
        }
        FPart = Part::Tail;
        if (S.FConditionsEnd < 0) S.FConditionsEnd = token.Start;
        if (token.Is(u"ORDER")) S.FOrder = token.Start;
        if (IsAny(token, {u"ROWS", u"OFFSET", u"FETCH"})) FLimited = true;
        if (IsAny(token, {u"GROUP", u"HAVING", u"UNION"})) S.FPlain = false;
        if (!token.Is(u"UNION")) return;
        S.FMainTable.clear();
        S.FUnion = true;
    }

    void Finish() {
        if (S.FConditionsEnd < 0) S.FConditionsEnd = S.FEnd;
        if (FLimited) S.FPlain = false;
        if (FLimited || FParamInOrder) S.FOrder = -1;
    }

    SqlShape& S;
    Part FPart = Part::Start;
    bool FStarted = false, FDistinct = false, FLimited = false, FParamInOrder = false;
    bool FItemBegins = true, FAfterDot = false, FLimit = false;
};

SqlShape::SqlShape(const UnicodeString& sql) : FText(sql) {
    SqlShapeReader(*this).Read();
}

// Counted from whichever end no * stands before it.
bool SqlShape::IsSelected(int column, int columns) const {
    const auto star = std::find(FItems.begin(), FItems.end(), Item::Star);
    if (column < star - FItems.begin()) return FItems[static_cast<size_t>(column)] == Item::Select;
    const auto lastStar = std::find(FItems.rbegin(), FItems.rend(), Item::Star);
    const int fromEnd = columns - 1 - column;
    return fromEnd < lastStar - FItems.rbegin() &&
           FItems[FItems.size() - 1 - static_cast<size_t>(fromEnd)] == Item::Select;
}

UnicodeString SqlShape::Around(const UnicodeString& items, qsizetype end, size_t columns) const {
    TStringArray names;
    for (size_t i = 1; i <= columns; ++i) names.push_back(u'C' + UnicodeString::number(i));
    return u"SELECT "_s + items + u" FROM ("_s + FText.left(end) + u"\n) R ("_s + Joined(names, u", "_s) +
           u')';
}

UnicodeString SqlShape::AroundText(const TStringArray& items) const {
    return Around(Joined(items, u", "_s), FEnd, items.size());
}

UnicodeString SqlShape::CountText(int columns) const {
    return Around(u"COUNT(*)"_s, FOrder >= 0 ? FOrder : FEnd, static_cast<size_t>(columns));
}

UnicodeString SqlShape::KeyedText(const TStringArray& keyColumns) const {
    TStringArray keys;
    for (const UnicodeString& column : keyColumns) {
        keys.push_back(QuoteIdentifier(FMainAlias) + u'.' + QuoteIdentifier(column) + u" = ?"_s);
    }
    constexpr int kWhereLength = 5;
    const UnicodeString sources = FText.left(FWhere >= 0 ? FWhere : FConditionsEnd);
    const UnicodeString text = sources + u"\nWHERE ("_s + Joined(keys, u" AND "_s) + u')';
    if (FWhere < 0) return text;
    const qsizetype start = FWhere + kWhereLength;
    return text + u" AND ("_s + FText.mid(start, FConditionsEnd - start) + u"\n)"_s;
}

}  // namespace fichario
