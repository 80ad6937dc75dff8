#include <gtest/gtest.h>
#include <cerrno>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/IniFile.h"
#include "platform/rtl/Strings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class IniFile : public ::testing::Test {
  protected:
    void Put(const QByteArray& bytes) const { WriteWholeFile(Path, bytes); }
    QByteArray OnDisk() const { return ReadWholeFile(Path); }

    QTemporaryDir Folder;
    UnicodeString Path = Folder.filePath(u"Config.ini"_s);
};

}  // namespace

TEST_F(IniFile, ReadsWhatIsThereAndDefaultsForTheRest) {
    Put("; note=1\nglobal=g\n[Data]\n Host = a;b\\c,d \nEmpty=\nQ=\" x "
        "\"\nN=12\nF=1,5\nB=1\nN=99\n[data]\nLate=\xE7\n");
    const TIniFile ini(Path);
    EXPECT_EQ(ini.ReadString(u"DATA", u"host", u"?"_s), u"a;b\\c,d"_s);
    EXPECT_EQ(ini.ReadString(u"Data", u"Empty", u"?"_s), u""_s);
    EXPECT_EQ(ini.ReadString(u"Data", u"Q", u"?"_s), u" x "_s);
    EXPECT_EQ(ini.ReadString(u"Data", u"Late", u"?"_s), u"ç"_s);
    EXPECT_EQ(ini.ReadString(u"", u"global", u"?"_s), u"g"_s);
    EXPECT_EQ(ini.ReadString(u"", u"; note", u"?"_s), u"?"_s);
    EXPECT_EQ(ini.ReadInteger(u"Data", u"N", 5), 12);
    EXPECT_EQ(ini.ReadInteger(u"Data", u"Host", 5), 5);
    EXPECT_EQ(ini.ReadFloat(u"Data", u"F", 0), 1.5);
    EXPECT_TRUE(ini.ReadBool(u"Data", u"B", false));
    EXPECT_TRUE(ini.ReadBool(u"Data", u"Missing", true));
    EXPECT_TRUE(ini.ValueExists(u"Data", u"Empty"));
    EXPECT_FALSE(ini.SectionExists(u"Other"));
    TStringList keys;
    ini.ReadSection(u"data", keys);
    EXPECT_EQ(keys.CommaText(), u"Host,Empty,Q,N,F,B,N,Late"_s);
}

TEST_F(IniFile, WritesTouchTheirLineAlone) {
    Put("; top\r\n[A]\r\nx=1\r\njunk \xFF\x81 line\r\n\r\n[B]\r\ny=\\2;,\r\nz=3");
    TIniFile ini(Path);
    ini.WriteString(u"a"_s, u"X"_s, u"C:\\dados;é"_s);
    ini.WriteInteger(u"A"_s, u"new"_s, -1);
    ini.WriteBool(u"B"_s, u"flag"_s, true);
    ini.WriteFloat(u"C"_s, u"f"_s, 1.5);
    EXPECT_EQ(OnDisk(),
              "; top\r\n[A]\r\nx=C:\\dados;\xE9\r\njunk \xFF\x81 "
              "line\r\nnew=-1\r\n\r\n[B]\r\ny=\\2;,\r\nz=3\r\nflag=1\r\n"
              "\r\n[C]\r\nf=1,5\r\n"_ba);
    ini.DeleteKey(u"A"_s, u"x"_s);
    ini.EraseSection(u"b"_s);
    EXPECT_EQ(OnDisk(), "; top\r\n[A]\r\njunk \xFF\x81 line\r\nnew=-1\r\n\r\n[C]\r\nf=1,5\r\n"_ba);
}

TEST_F(IniFile, EveryOneLineValueComesBack) {
    TIniFile ini(Path);
    for (const QStringView value : {u"", u" a ", u"\"q\"", u"\"", u"a=b", u"[x]", u";c", u"\ttab", u"\"\""}) {
        ini.WriteString(u"S"_s, u"k"_s, value.toString());
        Put(OnDisk());  // a new file on disk: what follows is read from there
        EXPECT_EQ(TIniFile(Path).ReadString(u"S", u"k", u"?"_s), value);
    }
}

TEST_F(IniFile, Utf8WithItsMark) {
    Put("\xEF\xBB\xBF[A]\nx=\xC3\xA7\xE2\x82\xAC\n");
    TIniFile ini(Path);
    EXPECT_EQ(ini.ReadString(u"A", u"x", {}), u"ç€"_s);
    ini.WriteString(u"A"_s, u"y"_s, u"日"_s);
    EXPECT_EQ(OnDisk(), "\xEF\xBB\xBF[A]\nx=\xC3\xA7\xE2\x82\xAC\ny=\xE6\x97\xA5\n"_ba);
    Put("[A]\nx=\xE7\n");  // moves to UTF-8 for what the code page lacks
    ini.WriteString(u"A"_s, u"y"_s, u"日"_s);
    EXPECT_EQ(OnDisk(), "\xEF\xBB\xBF[A]\nx=\xC3\xA7\ny=\xE6\x97\xA5\n"_ba);
}

TEST_F(IniFile, GarbageHasNoSettingsAndIsKept) {
    QByteArray garbage;
    for (int i = 0; i < 2000; ++i) garbage += static_cast<char>(i * 7919 >> 3);
    for (const QByteArray& bytes : {garbage, QByteArray(100, '\0'), "[[[\n]=\n[\n=\n=x\n\r\r\n"_ba}) {
        Put(bytes);
        TIniFile ini(Path);
        EXPECT_EQ(ini.ReadString(u"A", u"x", u"default"_s), u"default"_s);
        ini.WriteString(u"A"_s, u"x"_s, u"1"_s);
        EXPECT_EQ(ini.ReadString(u"A", u"x", {}), u"1"_s);
        EXPECT_TRUE(OnDisk().startsWith(bytes));
    }
}

TEST_F(IniFile, NamesThatWouldNotComeBackAreRefused) {
    TIniFile ini(Path);
    EXPECT_THROW(ini.WriteString(u"A]"_s, u"k"_s, {}), EConvertError);
    for (const QStringView key : {u"", u"a=b", u";a", u"[a", u" a", u"a\nb"}) {
        EXPECT_THROW(ini.WriteString(u"A"_s, key.toString(), {}), EConvertError);
    }
    EXPECT_THROW(ini.WriteString(u"A"_s, u"k"_s, u"1\r\n[B]"_s), EConvertError);
    EXPECT_FALSE(QFile::exists(Path));
}

TEST_F(IniFile, ObjectsOnOnePathShareAndSeeForeignChanges) {
    TIniFile one(Path), two(Folder.path() + u"/../"_s + QDir(Folder.path()).dirName() + u"/Config.ini"_s);
    one.WriteString(u"A"_s, u"x"_s, u"1"_s);
    EXPECT_EQ(two.ReadString(u"A", u"x", {}), u"1"_s);
    Put("[A]\nx=2\n");
    EXPECT_EQ(one.ReadString(u"A", u"x", {}), u"2"_s);
    QFile::remove(Path);
    EXPECT_EQ(one.ReadString(u"A", u"x", u"gone"_s), u"gone"_s);
}

TEST_F(IniFile, BracketSavesOnceOverWhatOthersWrote) {
    int writes = 0;
    const TFileFailure before = SetFileFailure([&](auto&, TFileOperation operation) {
        writes += operation == foWrite;
        return std::nullopt;
    });
    const auto restore = qScopeGuard([&] { SetFileFailure(before); });
    TIniFile ini(Path);
    {
        const TIniUpdate update(ini);
        const TIniUpdate inner(ini);
        ini.WriteString(u"A"_s, u"x"_s, u"1"_s);
        EXPECT_EQ(TIniFile(Path).ReadString(u"A", u"x", {}), u"1"_s);
        EXPECT_EQ(writes, 0);
        Put("[B]\r\nforeign=1\r\n");
        ini.WriteString(u"A"_s, u"y"_s, u"2"_s);
    }
    EXPECT_EQ(writes, 2);
    EXPECT_EQ(OnDisk(), "[B]\r\nforeign=1\r\n\r\n[A]\r\nx=1\r\ny=2\r\n"_ba);
    ini.WriteString(u"A"_s, u"y"_s, u"2"_s);  // the same value: nothing to save
    EXPECT_EQ(writes, 2);
}

TEST_F(IniFile, BracketEndedByAnExceptionSavesNothing) {
    TIniFile ini(Path);
    try {
        const TIniUpdate update(ini);
        ini.WriteString(u"A"_s, u"x"_s, u"1"_s);
        Abort();
    } catch (const EAbort&) {
    }
    EXPECT_FALSE(ini.ValueExists(u"A", u"x"));
    EXPECT_FALSE(QFile::exists(Path));
}

TEST_F(IniFile, FailedWriteNamesTheCauseAndChangesNothing) {
    Put("[A]\nx=1\n");
    TIniFile ini(Path);
    const TFileFailure before = SetFileFailure([](auto&, TFileOperation operation) {
        return operation == foWrite ? std::optional(ENOSPC) : std::nullopt;
    });
    const auto restore = qScopeGuard([&] { SetFileFailure(before); });
    const auto writeAll = [&] {
        const TIniUpdate update(ini);
        ini.WriteString(u"A"_s, u"x"_s, u"3"_s);
    };
    EXPECT_THROW(writeAll(), EInOutError);
    try {
        ini.WriteString(u"A"_s, u"x"_s, u"2"_s);
        ADD_FAILURE() << "not refused";
    } catch (const EInOutError& e) {
        EXPECT_EQ(e.Message, u"Não foi possível gravar o arquivo '"_s + Path + u"': disco cheio."_s);
        EXPECT_EQ(e.ErrorCode, ENOSPC);
    }
    EXPECT_EQ(ini.ReadString(u"A", u"x", {}), u"1"_s);
    EXPECT_EQ(OnDisk(), "[A]\nx=1\n"_ba);
}

TEST_F(IniFile, UnreadableFileReadsAsEmptyButIsNotOverwritten) {
    QDir().mkpath(Path);  // a folder stands where the file should be
    TIniFile ini(Path);
    EXPECT_EQ(ini.ReadString(u"A", u"x", u"default"_s), u"default"_s);
    EXPECT_THROW(ini.WriteString(u"A"_s, u"x"_s, u"1"_s), EInOutError);
    TIniFile lost(Folder.filePath(u"missing/Config.ini"_s));
    EXPECT_THROW(lost.WriteString(u"A"_s, u"x"_s, u"1"_s), EInOutError);
    EXPECT_FALSE(lost.ValueExists(u"A", u"x"));
}

TEST_F(IniFile, StampTellsARenamedFileOfTheSameSize) {
    EXPECT_EQ(FileStamp(Path), TFileStamp());
    Put("[A]\n");
    const TFileStamp before = FileStamp(Path);
    EXPECT_EQ(FileStamp(Path), before);
    Put("[B]\n");
    EXPECT_FALSE(FileStamp(Path) == before);
    EXPECT_THROW(ReadWholeFile(Folder.filePath(u"none"_s)), EInOutError);
}
