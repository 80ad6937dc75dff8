#include "sql/parse/Varredura.h"

#include <algorithm>

#include "sql/parse/Palavras.h"

namespace {

bool HoldsParenthesis(QStringView keyword) {
    return keyword.contains(u'(') || keyword.contains(u')');
}

bool HoldsParenthesis(const TSQLSearch& search) {
    return HoldsParenthesis(search.Opening) || std::any_of(search.Endings.begin(), search.Endings.end(),
                                                           [](QStringView k) { return HoldsParenthesis(k); });
}

// Stops at the opening keyword; 0 when there is none.
int FindOpening(TWordScanner& words, const TSQLSearch& search) {
    while (words.Next()) {
        if (words.Depth() == 0 && words.Is(search.Opening)) {
            words.Skip(search.Opening.size());
            return int(words.Place()) + 1;
        }
        if (search.FirstWord && words.IsWordStart()) return 0;
    }
    return 0;
}

int FindEnding(TWordScanner& words, const TSQLSearch& search) {
    const auto ends = [&](QStringView keyword) { return words.Is(keyword); };
    while (words.Next()) {
        if (words.Depth() != 0) continue;
        if (std::any_of(search.Endings.begin(), search.Endings.end(), ends)) return int(words.Place()) + 1;
    }
    return 0;
}

}  // namespace

TSQLRegion ParseStr(QStringView text, const TSQLSearch& search) {
    const QStringView read =
        search.Limit > 0 ? text.first(std::min<qsizetype>(search.Limit, text.size())) : text;
    TWordScanner words(read, std::max(search.From, 1) - 1, !HoldsParenthesis(search));
    TSQLRegion region;
    region.Start = FindOpening(words, search);
    if (!region.Found()) return region;
    region.End = FindEnding(words, search);
    if (region.End == 0) region.End = int(read.size()) + 1;
    return region;
}
