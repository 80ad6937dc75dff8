// The stages of key strokes, characters and texts of input methods.
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QTest>
#include "tests/platform/ui/FormFixture.h"

namespace {

// A menu that knows Ctrl+N and Alt+A.
class TTestMenu : public TComponent, public TShortCutSource {
  public:
    using TComponent::TComponent;
    bool RunShortCut(int key, TShiftState shift) override {
        return Run(u"menu"_s, key == 'N' && shift == ssCtrl);
    }
    bool RunMnemonic(QChar letter) override { return Run(u"mnemonic"_s, letter.toUpper() == u'A'); }
    bool OpenMenu() override { return Run(u"open"_s, true); }

  private:
    static bool Run(const UnicodeString& entry, bool mine) {
        if (mine) Note(entry);
        return mine;
    }
};

class KeysTest : public FormFixture {
  protected:
    void SetUp() override {
        FormFixture::SetUp();
        Form = NewChild(u"A"_s);
        Form->SetKeyPreview(true);
        Edit = Form->NewEdit(u"E"_s);
        Edit->SetFocus();
        Settle();
        Form->OnKeyDown = [](TComponent*, int& key, TShiftState shift) {
            Note(u"F%1+%2"_s.arg(key).arg(shift));
        };
        Edit->OnKeyDown = [](TComponent*, int& key, TShiftState) { Note(u"C%1"_s.arg(key)); };
        Form->OnKeyPress = [](TComponent*, WideChar& key) { Note(u"f%1"_s.arg(int(key))); };
        Edit->OnKeyPress = [](TComponent*, WideChar& key) { Note(u"c%1"_s.arg(int(key))); };
        TakeJournal();
    }

    TTestForm* Form = nullptr;
    TEdit* Edit = nullptr;
};

// "Ctrl+C|\u0003": the virtual key of a stroke of that text, and its character.
QString Stroke(const QStringList& a) {
    const QKeyCombination keys = QKeySequence::fromString(a[0])[0];
    const QKeyEvent stroke(QEvent::KeyPress, keys.key(), keys.keyboardModifiers(), a[1]);
    return u"%1 %2"_s.arg(VirtualKeyOf(stroke)).arg(int(CharacterOf(stroke)));
}

TEST_F(KeysTest, PassTheirStages) {
    Run(UI_TESTS "/tables/teclas.txt",
        {{u"Stroke"_s, Stroke},
         {u"ShortCuts"_s, Does([this](const QStringList&) {
              Form->OnShortCut = [](TShortCutKey& key, bool&) { Note(u"S%1"_s.arg(key.Key)); };
          })},
         {u"Listen"_s, Does([](const QStringList& a) {
              dynamic_cast<TControl*>(Named(a[0]))->OnKeyDown = [](TComponent* sender, int& key,
                                                                   TShiftState) {
                  Note(sender->Name() + QString::number(key));
              };
          })}});
}

TEST_F(KeysTest, HandlersSwallowAndChange) {
    Edit->OnKeyPress = [](TComponent*, WideChar& key) {
        key = key == u'b' ? 0 : QChar(key).toUpper().unicode();
    };
    Form->OnKeyDown = [](TComponent*, int& key, TShiftState) {
        if (key == 'C') key = 0;
        if (key == 'D') Abort();
    };
    TypeText(u"abcde"_s);
    EXPECT_EQ(Edit->Text(), u"AE"_s);
    ExpectBox(u"não"_s, u"Erro"_s, MB_OK | MB_ICONERROR);
    Form->OnKeyPress = [](TComponent*, WideChar& key) {
        if (key == u'x') throw Exception(u"não"_s);
    };
    TypeText(u"xf"_s);
    EXPECT_EQ(Edit->Text(), u"AEF"_s);
}

TEST_F(KeysTest, ShortCutsMenusAndMnemonicsComeFirst) {
    new TTestMenu(Form);
    Press('N', ssCtrl);
    Press('A', ssAlt);
    Press(VK_F10);
    EXPECT_EQ(TakeJournal(), "F17+4 C17 menu F18+2 C18 mnemonic open");
    auto* label = NewControl<TLabel>(Form, Form, u"L"_s);
    TEdit* other = Form->NewEdit(u"E2"_s, 100);
    label->SetCaption(u"&Preço"_s);
    label->SetFocusControl(other);
    Press('P', ssAlt);
    EXPECT_TRUE(other->Focused());
    Edit->SetFocus();
    TakeJournal();
    Form->OnShortCut = [](TShortCutKey& key, bool& handled) {
        handled = key.Key == VK_ESCAPE || key.Key == 'N';
    };
    Press(VK_ESCAPE);
    Press('N', ssCtrl);
    EXPECT_EQ(TakeJournal(), "F17+4 C17");
}

TEST_F(KeysTest, MainFormsMenuServesTheFormsInside) {
    new TTestMenu(Main);
    Press('N', ssCtrl);
    EXPECT_EQ(TakeJournal(), "F17+4 C17 menu");
}

TEST_F(KeysTest, StrokeBelongsToTheControlThatHadTheFocus) {
    TEdit* other = Form->NewEdit(u"E2"_s, 100);
    Edit->OnKeyPress = [&](TComponent*, WideChar&) { other->SetFocus(); };
    TypeText(u"z"_s);
    EXPECT_EQ(Edit->Text(), u"z"_s);
    EXPECT_EQ(other->Text(), u""_s);
}

TEST_F(KeysTest, InputMethodTextPassesLetterByLetter) {
    Edit->OnKeyPress = [](TComponent*, WideChar& key) {
        Note(QChar(key));
        if (key == u'1') Abort();
        key = QChar(key).toUpper().unicode();
    };
    Form->OnKeyPress = nullptr;
    CommitText(u"ã1é"_s);
    EXPECT_EQ(TakeJournal(), "ã 1 é");
    EXPECT_EQ(Edit->Text(), u"ÃÉ"_s);
}

TEST_F(KeysTest, InputMethodTextReachesAGridAsStrokes) {
    class TKeyTaker : public TWidget<QWidget> {
      public:
        explicit TKeyTaker(TComponent* owner) : TWidget(owner) {
            setFocusPolicy(Qt::StrongFocus);
            setAttribute(Qt::WA_InputMethodEnabled);
        }
        bool TextAsKeys() const override { return true; }
        UnicodeString Typed;

      protected:
        void keyPressEvent(QKeyEvent* event) override { Typed += event->text(); }
    };
    auto* taker = NewControl<TKeyTaker>(Form, Form, u"G"_s, QRect(8, 50, 50, 50));
    taker->OnKeyPress = [](TComponent*, WideChar& key) { key = QChar(key).toUpper().unicode(); };
    taker->SetFocus();
    CommitText(u"çã"_s);
    EXPECT_EQ(taker->Typed, u"ÇÃ"_s);
}

TEST_F(KeysTest, InjectedStrokesComeLaterAndPassAllStages) {
    TEdit* other = Form->NewEdit(u"E2"_s, 100);
    InjectKey(VK_TAB);
    InjectKey('7');
    InjectKey(VK_TAB, ssShift);
    EXPECT_TRUE(Edit->Focused());
    Settle();
    EXPECT_EQ(other->Text(), u"7"_s);
    EXPECT_TRUE(Edit->Focused());
    EXPECT_NE(TakeJournal().find("F9+0 C9 E.exit E2.enter F55+0 f55"), std::string::npos);
}

TEST_F(KeysTest, SilentWhileAMenuIsOpen) {
    QMenu menu;
    menu.addAction(u"Item"_s);
    menu.popup(Form->Widget()->mapToGlobal(QPoint(10, 10)));
    Settle();
    Press(VK_DOWN);
    Press(VK_ESCAPE);
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(TakeJournal(), "");
}

}  // namespace
