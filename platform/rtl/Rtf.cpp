#include "platform/rtl/Rtf.h"

#include "platform/rtl/RtfReader.h"

namespace {

constexpr QStringView kLineEnd = u"\r\n";

class TPlainText : public TRtfSink {
  public:
    UnicodeString Result;

    void Text(QStringView text, const TRtfLetters&) override {
        if (text == u"\u2028") {
            Result += kLineEnd;
        } else {
            Result += text;
        }
    }
    void EndParagraph(const TRtfParagraph&) override { Result += kLineEnd; }
};

}  // namespace

bool IsRtf(QByteArrayView bytes) {
    return bytes.startsWith("{\\rtf");
}

UnicodeString RtfToPlainText(QByteArrayView rtf) {
    TPlainText text;
    ReadRtf(rtf, text);
    return text.Result;
}
