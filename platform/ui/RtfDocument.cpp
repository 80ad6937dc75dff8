#include "platform/ui/RtfDocument.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <vector>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Rtf.h"
#include "platform/rtl/RtfReader.h"

namespace {

constexpr QChar kSoftBreak = u'\u2028';
const QByteArray kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Verdana;}{\\f1\\fnil\\fcharset2 Symbol;}}\r\n";
const QByteArray kBullet =
    "{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\fi-200\\li200 ";

// ---- reading ----

QTextCharFormat FormatOf(const TRtfLetters& letters) {
    QTextCharFormat format;
    format.setFontWeight(letters.Bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(letters.Italic);
    format.setFontUnderline(letters.Underline);
    if (letters.Color >= 0) format.setForeground(QColor::fromRgb(QRgb(letters.Color)));
    return format;
}

Qt::Alignment AlignmentOf(TRtfAlign align) {
    return align == TRtfAlign::Right    ? Qt::AlignRight
           : align == TRtfAlign::Center ? Qt::AlignHCenter
                                        : Qt::AlignLeft;
}

// Writes what it hears at the end of a document.
class TFiller : public TRtfSink {
  public:
    explicit TFiller(QTextDocument& document) : FCursor(&document) { FCursor.beginEditBlock(); }
    ~TFiller() override { FCursor.endEditBlock(); }

    // The end of the last paragraph is the document's own.
    void Text(QStringView text, const TRtfLetters& letters) override {
        BeginPending();
        FCursor.insertText(text.toString(), FormatOf(letters));
    }
    void EndParagraph(const TRtfParagraph& paragraph) override {
        BeginPending();
        Shape(paragraph);
        FPending = true;
    }
    void LastParagraph(const TRtfParagraph& paragraph) override {
        if (!FPending) Shape(paragraph);
    }

  private:
    void BeginPending() {
        if (!std::exchange(FPending, false)) return;
        FCursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    }
    void Shape(const TRtfParagraph& paragraph) {
        QTextBlockFormat format;
        format.setAlignment(AlignmentOf(paragraph.Align));
        FCursor.setBlockFormat(format);
        if (paragraph.Bullet) FCursor.createList(QTextListFormat::ListDisc);
    }

    QTextCursor FCursor;
    bool FPending = false;
};

// ---- writing ----

int ColorOf(const QTextCharFormat& format) {
    return format.hasProperty(QTextFormat::ForegroundBrush)
               ? int(format.foreground().color().rgb() & 0xFFFFFF)
               : -1;
}

class TWriter {
  public:
    explicit TWriter(const QTextDocument& document) : FDocument(document) {}

    QByteArray Write() {
        for (QTextBlock block = FDocument.begin(); block.isValid(); block = block.next()) Paragraph(block);
        return kHead + ColorTable() + FBody + "}";
    }

  private:
    void Paragraph(const QTextBlock& block) {
        FBody += "\\pard";
        const Qt::Alignment align = block.blockFormat().alignment();
        if (align & Qt::AlignRight) FBody += "\\qr";
        if (align & Qt::AlignHCenter) FBody += "\\qc";
        FBody += ' ';
        if (block.textList()) FBody += kBullet;
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) Piece(piece.fragment());
        if (block.next().isValid()) FBody += "\\par\r\n";
    }

    void Piece(const QTextFragment& fragment) {
        const QTextCharFormat format = fragment.charFormat();
        QByteArray words;
        if (format.fontWeight() >= QFont::Bold) words += "\\b";
        if (format.fontItalic()) words += "\\i";
        if (format.fontUnderline()) words += "\\ul";
        if (const int color = ColorOf(format); color >= 0)
            words += "\\cf" + QByteArray::number(ColorIndex(color));
        const QByteArray text = Escaped(fragment.text());
        FBody += words.isEmpty() ? text : "{" + words + " " + text + "}";
    }

    int ColorIndex(int color) {
        for (size_t i = 0; i < FColors.size(); ++i) {
            if (FColors[i] == color) return int(i) + 1;
        }
        FColors.push_back(color);
        return int(FColors.size());
    }

    QByteArray ColorTable() const {
        QByteArray table = "{\\colortbl ;";
        for (const int color : FColors) {
            table += "\\red" + QByteArray::number(color >> 16) + "\\green" +
                     QByteArray::number((color >> 8) & 255) + "\\blue" + QByteArray::number(color & 255) +
                     ";";
        }
        return table + "}\r\n";
    }

    // Plain ASCII; all else as \u with a question mark for readers without Unicode.
    static QByteArray Escaped(const QString& text) {
        QByteArray result;
        for (const QChar c : text) {
            if (c == kSoftBreak) {
                result += "\\line ";
            } else if (c == u'\t') {
                result += "\\tab ";
            } else if (c == u'\\' || c == u'{' || c == u'}') {
                result += '\\';
                result += char(c.unicode());
            } else if (c.unicode() < 128) {
                result += char(c.unicode());
            } else {
                result += "\\u" + QByteArray::number(int16_t(c.unicode())) + "?";
            }
        }
        return result;
    }

    const QTextDocument& FDocument;
    QByteArray FBody;
    std::vector<int> FColors;
};

}  // namespace

void LoadRtf(QTextDocument& document, QByteArrayView rtf) {
    document.clear();
    if (!IsRtf(rtf)) return document.setPlainText(FromAnsi(rtf));
    TFiller filler(document);
    ReadRtf(rtf, filler);
}

QByteArray SaveRtf(const QTextDocument& document) {
    return document.isEmpty() ? QByteArray() : TWriter(document).Write();
}
