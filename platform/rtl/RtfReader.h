// Reads RTF as a stream of formatted text.
//
//     class TSink : public TRtfSink { … };
//     TSink sink;
//     ReadRtf("{\\rtf1 Ol\\'e1 {\\b mundo}\\par}", sink);     // Text "Olá ", Text "mundo" (bold),
//     EndParagraph
//
// Understands what the rich text format, version 1.9 and earlier, says of text: characters, \'hh bytes in
// Windows-1252, \uN with the fallback of \ucN characters skipped; bold, italic, underline and colour of
// letters; alignment and bullets of paragraphs. Font and style tables, document information, pictures,
// headers and footers, and any destination marked \* give no text. Numbered lists come as bullets.
#pragma once
#include <QStringView>
#include "platform/rtl/Types.h"

enum class TRtfAlign { Left, Right, Center };

// How letters look.
struct TRtfLetters {
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    int Color = -1;  // 0xRRGGBB; -1: the reader's own
    bool operator==(const TRtfLetters&) const = default;
};

struct TRtfParagraph {
    TRtfAlign Align = TRtfAlign::Left;
    bool Bullet = false;
    bool operator==(const TRtfParagraph&) const = default;
};

class TRtfSink {
  public:
    virtual ~TRtfSink() = default;
    // A piece of text; a line break inside a paragraph comes as U+2028, a table cell ends with a tab.
    virtual void Text(QStringView text, const TRtfLetters& letters) = 0;
    // The paragraph whose text came last has ended. Text behind the last end belongs to an unended one, of
    // which `LastParagraph` tells the form once, after everything else.
    virtual void EndParagraph(const TRtfParagraph& paragraph) = 0;
    virtual void LastParagraph(const TRtfParagraph&) {}
};

// Damaged input gives the text that could be read: nothing is thrown but by the sink, and the cost is linear.
// What follows the document's last brace is ignored.
void ReadRtf(QByteArrayView rtf, TRtfSink& sink);
