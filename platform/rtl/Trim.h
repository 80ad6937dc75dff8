// Trimming as this house means it: every character of code 32 or below goes, and no other (a no-break space
// stays).
//
//     Trim(u" \r\nAna\t")      // u"Ana", a view into the same text
#pragma once
#include <QStringView>

// The text without the blanks and control characters at both ends. The view lives as long as `text`.
inline QStringView Trim(QStringView text) {
    while (!text.isEmpty() && text.front() <= u' ') text = text.sliced(1);
    while (!text.isEmpty() && text.back() <= u' ') text.chop(1);
    return text;
}
