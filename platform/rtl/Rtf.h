// Plain text out of RTF, without a screen.
//
//     RtfToPlainText("{\\rtf1 Ol\\'e1\\par mundo}")   // u"Olá\r\nmundo"
//
// Reads what documents of the rich text format, version 1.9 and earlier, hold as text: characters, \'hh bytes
// in Windows-1252, \uN with the fallback of \ucN characters skipped. Paragraphs, lines and table rows end
// with CR LF, cells with a tab. Font, colour and style tables, document information, pictures, headers and
// footers, and any destination marked \* give no text.
#pragma once
#include "platform/rtl/Types.h"

// Whether the bytes begin as an RTF document, with {\rtf.
bool IsRtf(QByteArrayView bytes);

// The document's text; what follows its last brace is ignored. Damaged input gives the text that could be
// read: nothing throws, and the cost is linear.
UnicodeString RtfToPlainText(QByteArrayView rtf);
