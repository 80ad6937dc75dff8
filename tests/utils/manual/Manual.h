// What the examples of docs/utils.md need: a folder of their own, and how a result is written there.
#pragma once
#include <gtest/gtest.h>
#include <QStringList>
#include <QTemporaryDir>

#include "platform/rtl/Files.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/system/Paths.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

inline QString Shown(bool value) {
    return value ? u"true"_s : u"false"_s;
}
inline QString Shown(std::integral auto value) {
    return QString::number(value);
}
inline QString Shown(double value) {
    return FloatToStr(value);
}
inline QString Shown(Currency value) {
    return CurrToStr(value);
}
inline QString Shown(TDateTime value) {
    return DateTimeToStr(value);
}
inline QString Shown(const QString& text) {
    return u'"' + text + u'"';
}
inline QString Shown(const QByteArray& text) {
    return Shown(QString::fromUtf8(text));
}
inline QString Shown(const Variant& value) {
    return value.Kind() == vkText ? Shown(value.ToText()) : value.ToText();
}
inline QString Shown(const TStringArray& texts) {
    QStringList shown;
    for (const QString& text : texts) shown << Shown(text);
    return shown.join(u", "_s);
}

class Manual : public testing::Test {
  protected:
    void SetUp() override {
        SetProgramFolder(pasta);
        qputenv("XDG_CONFIG_HOME", pasta.toLocal8Bit());
        WriteWholeFile(pasta + u"/carta.txt"_s, "Prezada Ana");
    }
    void TearDown() override {
        SetProgramFolder({});
        qunsetenv("XDG_CONFIG_HOME");
    }

    const QTemporaryDir Folder;
    const QString pasta = Folder.path();
};
