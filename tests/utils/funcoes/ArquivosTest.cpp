// Scrambling, the log, digests, settings and other programs: what touches files and the system.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <thread>

#include "platform/rtl/DateTime.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/system/NamedMutex.h"
#include "platform/system/Paths.h"
#include "platform/system/Processes.h"
#include "utils/Funcoes.h"
#include "utils/MD5.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Arquivos : public testing::Test {
  protected:
    void SetUp() override { SetProgramFolder(Folder.path()); }
    void TearDown() override {
        SetFileFailure(nullptr);
        SetClock(nullptr);
        SetProgramFolder({});
    }
    UnicodeString Path(const UnicodeString& name) const { return Folder.filePath(name); }

    QTemporaryDir Folder;
};

TEST(Senhas, ComeBackUpToNinetyNineBytes) {
    for (const int length : {0, 1, 3, 50, 98, 99}) {
        SCOPED_TRACE(length);
        AnsiString password;
        for (int i = 0; i < length; ++i) password += char(33 + i * 7 % 220);
        EXPECT_EQ(EncriptPass(password).size(), 204);
        EXPECT_EQ(DecriptPass(EncriptPass(password)), password);
        EXPECT_EQ(DecriptPass(EncriptPass(password) + "F"), password);
    }
    EXPECT_NE(EncriptPass("abc"), EncriptPass("abc"));
    EXPECT_TRUE(EncriptPass("abc").endsWith("4C4D4E"));
    const AnsiString hundred = AnsiString(99, 'x') + 'y';
    EXPECT_EQ(EncriptPass(hundred).size(), 202);
    EXPECT_EQ(DecriptPass(EncriptPass(hundred)), hundred.sliced(1));
    EXPECT_TRUE(EncriptPass(AnsiString(255, 'x')).isEmpty());  // 256 bytes, none of which is written
    EXPECT_EQ(EncriptPass(AnsiString(260, 'x')).size(), 2 * 5);
    for (const char* text : {"", "Z", "ZZ", "4C4", "4C+1", " 1", "0x"})
        EXPECT_EQ(DecriptPass(text), AnsiString()) << text;
}

TEST_F(Arquivos, ShiftBytesAndFiles) {
    AnsiString all;
    for (int i = 0; i < 256; ++i) all += char(i);
    EXPECT_EQ(Criptografa(AnsiString(1, char(250))), AnsiString(1, char(15)));
    EXPECT_EQ(Descriptografa(Criptografa(all)), all);
    WriteWholeFile(Path(u"a"_s), all);
    EncriptFile(Path(u"a"_s));
    EXPECT_EQ(ReadWholeFile(Path(u"a"_s)), Criptografa(all));
    DecriptFile(Path(u"a"_s), Path(u"b"_s));
    EXPECT_EQ(ReadWholeFile(Path(u"b"_s)), all);
    EXPECT_THROW(EncriptFile(Path(u"missing"_s)), EInOutError);
    EXPECT_THROW(DecriptFile(Path(u"missing"_s), Path(u"b"_s)), EInOutError);
    EXPECT_EQ(ReadWholeFile(Path(u"b"_s)), all);
}

TEST_F(Arquivos, LogOneLineAfterTheOther) {
    SetClock([] { return TDateTime(EncodeDate(2024, 3, 7).Value + EncodeTime(14, 5, 9, 0).Value); });
    Log(u"Ação €"_s);
    Log({});
    Log(u"uma\nduas 漢"_s);
    EXPECT_EQ(LogFileName(), Path(u"Logs/2024/03/07.log"_s));
    EXPECT_EQ(ReadWholeFile(LogFileName()),
              "07/03/2024 14:05:09: A\xE7\xE3o \x80\r\n07/03/2024 14:05:09: \r\n"
              "07/03/2024 14:05:09: uma\nduas ?\r\n");
    SetFileFailure([](const UnicodeString&, TFileOperation) { return std::optional(ENOSPC); });
    EXPECT_THROW(Log(u"cheio"_s), EInOutError);
    SetFileFailure(nullptr);
    SetProgramFolder(u"/proc/nenhum"_s);
    EXPECT_THROW(Log(u"pasta"_s), EInOutError);
}

// Two programs and two threads in each; every line must be there, and whole.
TEST_F(Arquivos, LogFromManySidesLosesAndMixesNothing) {
    constexpr int kLines = 300;
    const auto write = [](int side) {
        for (int i = 0; i < kLines; ++i)
            Log(u"%1-%2 %3"_s.arg(side).arg(i).arg(QString(80, QChar(u'a' + side))));
    };
    const auto two = [&](int side) {
        std::thread other(write, side);
        write(side + 1);
        other.join();
    };
    const pid_t child = fork();
    if (child == 0) {
        two(2);
        _exit(0);
    }
    two(0);
    int status = 0;
    waitpid(child, &status, 0);
    QList<QByteArray> lines = ReadWholeFile(LogFileName()).split('\n');
    EXPECT_EQ(lines.size(), 4 * kLines + 1);
    lines.removeLast();
    for (const QByteArray& line : lines)
        EXPECT_EQ(line.size(),
                  lines.front().size() + line.mid(21).indexOf(' ') - lines.front().mid(21).indexOf(' '));
}

TEST_F(Arquivos, DigestByTheBook) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "D41D8CD98F00B204E9800998ECF8427E"},
        {"abc", "900150983CD24FB0D6963F7D28E17F72"},
        {"message digest", "F96B697D7CB7938D525A2F31AAF161D0"}};
    for (const auto& [text, digest] : cases) {
        EXPECT_EQ(MD5DigestToStr(MD5String(text)), digest);
        EXPECT_EQ(MD5Print(MD5Buffer(text, uint32_t(strlen(text)))), digest);
    }
    QByteArray large(1'000'003, 'x');
    WriteWholeFile(Path(u"g"_s), large);
    QBuffer stream(&large);
    stream.open(QIODevice::ReadOnly);
    stream.seek(large.size());
    EXPECT_TRUE(MD5DigestCompare(MD5Stream(stream), MD5File(Path(u"g"_s))));
    EXPECT_EQ(stream.pos(), large.size());
    EXPECT_FALSE(MD5DigestCompare(MD5String("a"), MD5String("b")));
    EXPECT_THROW(MD5File(Path(u"missing"_s)), EInOutError);
}

TEST_F(Arquivos, SettingsAreTextsByPathAndName) {
    qputenv("XDG_CONFIG_HOME", Folder.path().toLocal8Bit());
    const UnicodeString path = u"Software\\Comercial"_s;
    EXPECT_FALSE(RegExists(rkCurrentUser, path, u"N"_s));
    EXPECT_EQ(GetRegValue(rkCurrentUser, path, u"N"_s).ToText(), UnicodeString());
    SetRegValue(rkCurrentUser, path, u"N"_s, 5);
    SetRegValue(rkCurrentUser, path, u"Nome"_s, u"C:\\dados;ação"_s);
    EXPECT_TRUE(RegExists(rkCurrentUser, path, u"N"_s));
    EXPECT_FALSE(RegExists(rkCurrentUser, path + u"\\X"_s, u"N"_s));
    EXPECT_EQ(GetRegValue(rkCurrentUser, path, u"N"_s), Variant(u"5"_s));
    EXPECT_EQ(GetRegValue(rkCurrentUser, path, u"Nome"_s).ToText(), u"C:\\dados;ação"_s);
    SetFileFailure([](const UnicodeString&, TFileOperation) { return std::optional(EACCES); });
    EXPECT_THROW(SetRegValue(rkCurrentUser, path, u"N"_s, 6), EInOutError);
    qunsetenv("XDG_CONFIG_HOME");
}

// A name of this run's own: programs are found by it in the whole system.
TEST_F(Arquivos, ProgramsAreStartedFoundAndEnded) {
    const UnicodeString name = u"Dorme%1"_s.arg(getpid()), program = Path(name + u".exe"_s);
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, Path(name)));
    EXPECT_EQ(OpenExecAndWait(program, u"0"_s, SW_SHOWNORMAL), 0);
    EXPECT_EQ(OpenExecAndWait(Path(u"nada.exe"_s), {}, SW_SHOWNORMAL), -1);
    EXPECT_THROW(OpenExec(Path(u"nada.exe"_s), {}), EOSError);
    OpenExec(program, u"30"_s);
    int pid = 0;
    EXPECT_TRUE(FindProcess(u"C:\\qualquer\\"_s + name.toUpper() + u".EXE"_s, pid));
    EXPECT_EQ(FindProcessEx(Path(name.toLower() + u".exe"_s)), pid);
    EXPECT_EQ(FindProcessEx(u"/outra/"_s + name), 0);
    KillProcess({});
    KillProcess(name.toLower() + u".exe"_s);
    EXPECT_TRUE(HasEnded(pid, 5000));
    EXPECT_FALSE(FindProcess(name, pid));
    EXPECT_FALSE(GetComputerNameFunc().isEmpty());
    EXPECT_FALSE(GetSys32Dir().endsWith(u'/'));
}

// A tool that outlives the program must not hold its files and locks.
TEST_F(Arquivos, ProgramsInheritNoFiles) {
    const UnicodeString lock = u"teste herança %1"_s.arg(getpid());
    TNamedMutex held(lock);
    ASSERT_TRUE(held.TryLock());
    QFile open(Path(u"aberto"_s));
    ASSERT_TRUE(open.open(QIODevice::WriteOnly));
    const int pid = StartProgram(u"/bin/sleep"_s, {u"20"_s});
    const QString listing = u"/proc/%1/fd"_s.arg(pid);
    QStringList targets;
    for (const QFileInfo& entry : QDir(listing).entryInfoList(QDir::Files | QDir::System))
        targets << entry.symLinkTarget();
    EXPECT_FALSE(targets.join(u' ').contains(u"aberto"_s) || targets.join(u' ').contains(u"trava-"_s))
        << targets.join(u' ').toStdString();
    TNamedMutex other(lock);
    EXPECT_FALSE(other.TryLock());
    held.Unlock();
    EXPECT_TRUE(other.TryLock());
    KillProcessEx(pid);
    EXPECT_TRUE(HasEnded(pid, 5000));
}

TEST(Linha, IsCutAtBlanksOutsideQuotes) {
    EXPECT_EQ(SplitArguments(u"-a  \"b c\" d"_s), (TStringArray{u"-a"_s, u"b c"_s, u"d"_s}));
    EXPECT_TRUE(SplitArguments({}).empty());
    EXPECT_TRUE(SameProgram(u"/a/PartImport.EXE", u"partimport"));
}

}  // namespace
