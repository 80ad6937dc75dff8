// Keeps an edit of one line to one line: of a pasted text, line breaks at the end are left out (a spreadsheet
// adds one to every cell), others become a blank.
//
//     setValidator(new TOneLine(this));
#pragma once
#include <QRegularExpression>
#include <QValidator>

class TOneLine : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int& caret) const override {
        static const QRegularExpression last(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]+$"));
        static const QRegularExpression inner(QStringLiteral("\\r\\n|[\\r\\n\\x{2028}\\x{2029}]"));
        text.remove(last).replace(inner, QStringLiteral(" "));
        caret = qMin(caret, int(text.size()));
        return Acceptable;
    }
};
