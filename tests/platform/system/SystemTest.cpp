#include <gtest/gtest.h>
#include <cerrno>
#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"
#include "platform/system/UserInterface.h"
#include "tests/support/LogWatch.h"

using namespace Qt::Literals::StringLiterals;

TEST(Paths, JoinsWithOneSeparator) {
    const struct {
        QStringView Folder, Name, Path;
    } cases[] = {{u"a", u"b", u"a/b"},
                 {u"a//", u"/b", u"a/b"},
                 {u"/", u"b", u"/b"},
                 {u"", u"b", u"b"},
                 {u"a", u"", u"a"}};
    for (const auto& c : cases) EXPECT_EQ(JoinPath(c.Folder, c.Name), c.Path);
}

TEST(Paths, ProgramFolderCanBeReplaced) {
    EXPECT_EQ(ProgramFolder(), QCoreApplication::applicationDirPath());
    SetProgramFolder(u"/elsewhere"_s);
    EXPECT_EQ(ProgramFolder(), u"/elsewhere"_s);
    SetProgramFolder({});
    EXPECT_EQ(ProgramFolder(), QCoreApplication::applicationDirPath());
}

TEST(Paths, UserDataFolderObeysTheEnvironment) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const auto restore = qScopeGuard([&] { qputenv("XDG_DATA_HOME", before); });
    qputenv("XDG_DATA_HOME", "/data");
    EXPECT_EQ(UserDataFolder(u"P"), u"/data/P"_s);
    qputenv("XDG_DATA_HOME", "relative");
    EXPECT_TRUE(UserDataFolder(u"P").endsWith(u"/.local/share/P"_s));
}

TEST(Paths, EnsureFolder) {
    const QTemporaryDir folder;
    const UnicodeString deep = JoinPath(folder.path(), u"a/b");
    EnsureFolder(deep);
    EnsureFolder(deep);
    WriteWholeFile(JoinPath(deep, u"file"), "x");
    EXPECT_THROW(EnsureFolder(JoinPath(deep, u"file/c")), EInOutError);
    const TFileFailure before = SetFileFailure([](auto&, TFileOperation) { return std::optional(EROFS); });
    const auto restore = qScopeGuard([&] { SetFileFailure(before); });
    EXPECT_THROW(EnsureFolder(JoinPath(deep, u"d")), EInOutError);
}

TEST(UserInterface, WithoutAScreenBoxesAreLoggedAndAnswered) {
    LogWatch::Expect(u"Erro: disco cheio"_s);
    EXPECT_EQ(UserInterface().MessageBox(u"disco cheio"_s, u"Erro"_s, MB_OK + MB_ICONERROR), IDOK);
    LogWatch::Expect(u"Excluir?"_s);
    EXPECT_EQ(UserInterface().MessageBox(u"Excluir?"_s, u"Confirmação"_s, MB_YESNO + MB_ICONQUESTION), IDNO);
    int calls = 0;
    UserInterface().WaitFor([&](int) { return ++calls == 3; });
    EXPECT_EQ(calls, 3);
}

TEST(UserInterface, TheInstalledScreenAnswers) {
    struct TSilent : TUserInterface {
        int MessageBox(const UnicodeString&, const UnicodeString&, int) override { return IDYES; }
        void ProcessMessages() override {}
        void EnableMainForm(bool) override {}
        void BringToFront() override {}
        void WaitFor(const std::function<bool(int)>&) override {}
    } screen;
    EXPECT_EQ(InstallUserInterface(&screen), nullptr);
    EXPECT_EQ(UserInterface().MessageBox({}, {}, MB_YESNO), IDYES);
    EXPECT_EQ(InstallUserInterface(nullptr), &screen);
}
