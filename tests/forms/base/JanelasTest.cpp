// Windows to the front and out of the taskbar, keys that nobody hears, arrows.
#include "utils/funcoes/Janelas.h"

#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include "tests/platform/ui/FormFixture.h"

namespace {

class JanelasTest : public FormFixture {};

TEST_F(JanelasTest, MinimisedFormComesToTheFront) {
    TTestForm* behind = NewChild(u"A"_s);
    TTestForm* front = NewChild(u"B"_s);
    behind->SetWindowState(wsMinimized);
    front->SetFocus();
    ASSERT_EQ(Application->ActiveForm(), front);
    EXPECT_TRUE(ForceForegroundWindow(behind));
    EXPECT_EQ(Application->ActiveForm(), behind);
    EXPECT_EQ(behind->WindowState(), wsNormal);
    EXPECT_TRUE(ForceForegroundWindow(behind));
}

TEST_F(JanelasTest, MainWindowLeavesTheTaskbarAndComesBackWithItsForms) {
    TTestForm* child = NewChild(u"A"_s);
    TEdit* edit = child->NewEdit(u"E"_s);
    edit->SetFocus();
    TakeJournal();
    QWidget* window = Main->Widget()->window();
    HideofTask();
    EXPECT_EQ(window->windowType(), Qt::Tool);
    ShowOnTask(u"Comercial"_s);
    EXPECT_EQ(window->windowType(), Qt::Window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), u"Comercial"_s);
    EXPECT_EQ(child->ActiveControl(), edit);
    EXPECT_TRUE(child->Visible());
    EXPECT_EQ(TakeJournal(), "");
}

TEST_F(JanelasTest, QueuedKeysAreDroppedAndTimersKeepTheirTurn) {
    TTestForm* form = NewChild(u"A"_s);
    TEdit* edit = form->NewEdit(u"E"_s);
    edit->SetFocus();
    InjectKey('7');
    QCoreApplication::postEvent(edit->Widget()->window()->windowHandle(),
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_8, Qt::NoModifier, u"8"_s));
    bool later = false;
    QMetaObject::invokeMethod(
        edit->Widget(), [&] { later = true; }, Qt::QueuedConnection);
    EmptyKeyQueue();
    Settle();
    EXPECT_EQ(edit->Text(), u""_s);
    EXPECT_TRUE(later);
    Press('9');
    EXPECT_EQ(edit->Text(), u"9"_s);
}

TEST(SetasTest, ArrowsAreOutlinesAroundTheirPoint) {
    const auto draw = [](auto arrow) {
        QImage image(12, 8, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        arrow(painter, 4, Qt::red, QPoint(1, 4));
        painter.end();
        std::string rows;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) rows += image.pixelColor(x, y) == Qt::red ? '#' : '.';
            rows += '\n';
        }
        return rows;
    };
    EXPECT_EQ(
        draw(DesenharSetaDown),
        "............\n............\n.#########..\n..#.....#...\n...#...#....\n....#.#.....\n.....#......\n"
        "............\n");
    EXPECT_EQ(
        draw(DesenharSetaUp),
        "............\n............\n.....#......\n....#.#.....\n...#...#....\n..#.....#...\n.#########..\n"
        "............\n");
}

}  // namespace
