// Boxes, exceptions, timers and the closed wait.
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include "platform/ui/Resources.h"
#include "platform/ui/Timer.h"
#include "tests/platform/ui/FormFixture.h"

namespace {

class ApplicationTest : public FormFixture {};

// The real box, answered from the keyboard and by its buttons.
TEST_F(ApplicationTest, RealBoxesAnswerInPortuguese) {
    struct TCase {
        int Flags;
        const char* Button;  // null: Escape
        int Answer;
    };
    constexpr TCase kCases[] = {{MB_YESNO | MB_ICONQUESTION, "&Sim", IDYES},
                                {MB_YESNO, "&Não", IDNO},
                                {MB_YESNO, nullptr, IDNO},
                                {MB_OK | MB_ICONERROR, "OK", IDOK},
                                {MB_OK, nullptr, IDOK},
                                {MB_OKCANCEL, nullptr, IDCANCEL},
                                {MB_YESNOCANCEL, "&Não", IDNO},
                                {MB_YESNOCANCEL, nullptr, IDCANCEL}};
    TTestForm* form = NewChild(u"A"_s);
    TakeJournal();
    const auto hook = std::exchange(Application->OnMessageBox, nullptr);
    for (const TCase& box : kCases) {
        QApplication::setActiveWindow(nullptr);  // another program is in front
        SCOPED_TRACE(std::to_string(box.Flags) + (box.Button ? box.Button : " Escape"));
        QTimer::singleShot(0, [&] {
            auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(shown);
            EXPECT_EQ(shown->text(), u"Texto <b>"_s);
            EXPECT_EQ(shown->parentWidget(), form->window());
            if (!box.Button) return QTest::keyClick(shown->windowHandle(), Qt::Key_Escape);
            for (QAbstractButton* button : shown->buttons()) {
                if (button->text() == QString::fromUtf8(box.Button)) return button->click();
            }
            ADD_FAILURE() << "no such button";
            shown->reject();
        });
        EXPECT_EQ(Application->MessageBox(u"Texto <b>"_s, u"Aviso"_s, box.Flags), box.Answer);
    }
    Application->OnMessageBox = hook;
    EXPECT_TRUE(form->Active());
    EXPECT_EQ(TakeJournal(), "");
}

TEST_F(ApplicationTest, ExceptionsAreShownOnceAndAbortsAreSilent) {
    auto* button = NewControl<TButton>(Main, Main, u"Btn"_s, QRect(8, 8, 80, 25));
    button->OnClick = [](TComponent*) { Abort(); };
    Click(button);
    button->OnClick = [](TComponent*) { throw EConvertError(u"'x' não é um número."_s); };
    ExpectBox(u"'x' não é um número."_s, u"Erro"_s, MB_OK | MB_ICONERROR);
    Click(button);
    Main->OnPaint = [](QPainter&) { throw Exception(u"sem pintura"_s); };
    ExpectBox(u"sem pintura"_s, u"Erro"_s, MB_OK | MB_ICONERROR);
    Main->Client()->Widget()->grab();
    Main->Client()->Widget()->grab();
    Settle();
    Main->OnPaint = nullptr;
}

TEST_F(ApplicationTest, TimersRestartAndFireByHand) {
    TTimer* timer = new TTimer(Main);
    int fired = 0;
    timer->OnTimer = [&](TComponent*) { ++fired; };
    EXPECT_EQ(timer->Interval(), 1000);
    timer->SetEnabled(false);
    timer->Fire();
    EXPECT_EQ(fired, 0);
    timer->SetInterval(20);
    EXPECT_FALSE(timer->Pending());
    timer->SetEnabled(true);
    timer->Fire();
    EXPECT_EQ(fired, 1);
    EXPECT_TRUE(Until([&] { return fired >= 3; }));
    timer->SetInterval(0);
    EXPECT_FALSE(timer->Pending());
}

TEST_F(ApplicationTest, ClosedWaitHoldsEverythingBack) {
    TTestForm* form = NewChild(u"A"_s);
    TEdit* edit = form->NewEdit(u"E"_s);
    edit->SetFocus();
    auto* timer = new TTimer(form);
    int fired = 0;
    bool cancelled = false;
    timer->SetInterval(1);
    timer->OnTimer = [&](TComponent*) {
        ++fired;
        timer->SetEnabled(false);
    };
    int rounds = 0;
    Application->WaitFor([&](int milliseconds) {
        EXPECT_EQ(Application->Waiting(), ++rounds > 1);
        EXPECT_LE(milliseconds, 250);
        if (rounds == 1) return false;
        QWindow* window = form->Widget()->window()->windowHandle();
        if (rounds == 2) {
            QTest::keyClick(window, Qt::Key_X);
            PostMessage(form, WM_SYSCOMMAND, SC_MAXIMIZE);
            InjectKey('Y');
            EXPECT_FALSE(Application->WaitCancelled());
            QTest::keyClick(window, Qt::Key_Escape);
        }
        cancelled = Application->WaitCancelled();
        EXPECT_EQ(fired, 0);
        EXPECT_TRUE(form->Commands.empty());
        return rounds > 200;
    });
    EXPECT_TRUE(cancelled);
    EXPECT_FALSE(Application->Waiting());
    EXPECT_TRUE(Until([&] { return fired == 1 && !form->Commands.empty(); }));
    EXPECT_EQ(edit->Text(), u"y"_s);
    EXPECT_TRUE(form->Visible());
}

TEST_F(ApplicationTest, ShortWaitHasNoLoop) {
    PostMessage(Main, WM_SYSCOMMAND, SC_MOVE);
    Application->WaitFor([](int) { return true; });
    EXPECT_TRUE(Main->Commands.empty());
}

TEST(ResourcesTest, FindsPicturesByName) {
    QTemporaryDir folder;
    QImage image(20, 10, QImage::Format_ARGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(folder.filePath(u"btn_novo.png"_s)));
    QFile drawing(folder.filePath(u"barra.svg"_s));
    ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
    drawing.write(
        "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='4'><rect width='8' height='4'/></svg>");
    drawing.close();
    EXPECT_TRUE(HasResource(folder.path(), u"BTN_NOVO"_s));
    EXPECT_EQ(ResourceSize(folder.path(), u"BTN_NOVO"_s), QSize(20, 10));
    const QPixmap bar = LoadBitmapResource(folder.path(), u"BARRA"_s, QSize(30, 4), 2);
    EXPECT_EQ(bar.size(), QSize(60, 8));
    EXPECT_EQ(bar.toImage().pixelColor(58, 6), QColor(Qt::black));
    EXPECT_THROW(LoadIconResource(folder.path(), u"NADA"_s), EResNotFound);
}

}  // namespace
