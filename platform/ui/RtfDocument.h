// A text document from and to RTF: letters (bold, italic, underline, colour) and paragraphs (alignment,
// bullets). Everything else of a document is read as text and not written.
//
//     LoadRtf(*edit->document(), bytes);
//     field->SetValue(SaveRtf(*edit->document()));
#pragma once
#include <QByteArray>

class QTextDocument;

// Bytes that are no RTF are taken as plain text in Windows-1252.
void LoadRtf(QTextDocument& document, QByteArrayView rtf);

// An empty document gives no bytes.
QByteArray SaveRtf(const QTextDocument& document);
