// Tables of cases kept as text, so that a case is added without C++. One case a line:
//
//     ## a remark
//     FillCharL(7|3|0) = 007
//     StrToInt(x) = throws
//
// The first ") =" ends the arguments. They are separated by | and, like the result, taken as they stand; \r
// \n \t \\ and \p (a |) are written so, and \uHHHH for any character. "throws" stands for any exception,
// "throws text" for one with that message.
#pragma once
#include <functional>
#include <map>
#include <QStringList>

using TTextFunction = std::function<QString(const QStringList& arguments)>;

// Runs every line of the file through the function it names. A line that fails is reported with file and
// number.
void CheckTextTable(const QString& path, const std::map<QString, TTextFunction>& functions);

// The text with its escapes undone.
QString Unescaped(const QString& text);
