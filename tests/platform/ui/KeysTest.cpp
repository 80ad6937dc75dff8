// The stages of key strokes, characters and texts of input methods.
#include <QKeyEvent>
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

TEST_F(KeysTest, StagesInOrder) {
    Form->OnShortCut = [](TShortCutKey& key, bool&) { Note(u"S%1"_s.arg(key.Key)); };
    Press('A');
    EXPECT_EQ(TakeJournal(), "S65 F65+0 C65 f97 c97");
    EXPECT_EQ(Edit->Text(), u"a"_s);
    Form->SetKeyPreview(false);
    Press('B');
    EXPECT_EQ(TakeJournal(), "S66 C66 c98");
}

TEST_F(KeysTest, WhichStrokesAreCharacters) {
    struct TCase {
        const char* Name;
        Qt::Key Key;
        const char16_t* Text;
        Qt::KeyboardModifiers Modifiers;
        int Virtual;
        int Character;
    };
    const TCase kCases[] = {{"Enter", Qt::Key_Return, u"\r", {}, VK_RETURN, 13},
                            {"Enter of the pad", Qt::Key_Enter, u"\r", Qt::KeypadModifier, VK_RETURN, 13},
                            {"Escape", Qt::Key_Escape, u"\x1b", {}, VK_ESCAPE, 27},
                            {"Backspace", Qt::Key_Backspace, u"\b", {}, VK_BACK, 8},
                            {"Delete", Qt::Key_Delete, u"\x7f", {}, VK_DELETE, 0},
                            {"Ctrl+C", Qt::Key_C, u"\x03", Qt::ControlModifier, 'C', 0},
                            {"Alt+C", Qt::Key_C, u"c", Qt::AltModifier, 'C', 0},
                            {"AltGr+E", Qt::Key_E, u"€", Qt::ControlModifier | Qt::AltModifier, 'E', 0x20AC},
                            {"cedilla", Qt::Key_Ccedilla, u"ç", {}, 0, 0xE7},
                            {"plus of the pad", Qt::Key_Plus, u"+", Qt::KeypadModifier, VK_ADD, '+'},
                            {"plus", Qt::Key_Plus, u"+", {}, 0, '+'},
                            {"back tab", Qt::Key_Backtab, u"\t", Qt::ShiftModifier, VK_TAB, 0},
                            {"F12", Qt::Key_F12, u"", {}, VK_F12, 0}};
    for (const TCase& expected : kCases) {
        SCOPED_TRACE(expected.Name);
        const QKeyEvent stroke(QEvent::KeyPress, expected.Key, expected.Modifiers,
                               QString::fromUtf16(expected.Text));
        EXPECT_EQ(VirtualKeyOf(stroke), expected.Virtual);
        EXPECT_EQ(int(CharacterOf(stroke)), expected.Character);
    }
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

TEST_F(KeysTest, AListIsItsControl) {
    auto* combo = NewControl<TComboBox>(Form, Form, u"Cb"_s, QRect(8, 60, 90, 25));
    combo->Items()->SetText(u"um\ndois\ntrês");
    combo->OnKeyDown = [](TComponent*, int& key, TShiftState) { Note(u"combo%1"_s.arg(key)); };
    combo->OnChange = [](TComponent*) { Note(u"change"_s); };
    combo->SetItemIndex(0);
    combo->SetFocus();
    combo->SetDroppedDown(true);
    Settle();
    TakeJournal();
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_EQ(TakeJournal(), "F40+0 combo40 F13+0 combo13 f13 change");
    EXPECT_EQ(combo->ItemIndex(), 1);
    EXPECT_FALSE(combo->DroppedDown());
}

TEST_F(KeysTest, DefaultAndCancelButtons) {
    auto* ok = NewControl<TButton>(Form, Form, u"BtnOk"_s, QRect(8, 60, 80, 25));
    auto* cancel = NewControl<TButton>(Form, Form, u"BtnCancel"_s, QRect(98, 60, 80, 25));
    auto* memo = NewControl<TMemo>(Form, Form, u"Memo"_s, QRect(8, 90, 80, 40));
    ok->SetDefault(true);
    cancel->SetCancel(true);
    ok->OnClick = cancel->OnClick = [](TComponent* sender) { Note(sender->Name()); };
    Press(VK_RETURN);
    Press(VK_ESCAPE);
    EXPECT_EQ(TakeJournal(), "BtnOk BtnCancel");
    memo->SetFocus();
    TakeJournal();
    Press(VK_RETURN);
    EXPECT_EQ(memo->Text(), u"\r\n"_s);
    memo->SetWantReturns(false);
    Press(VK_RETURN);
    EXPECT_NE(TakeJournal().find("BtnOk"), std::string::npos);
}

}  // namespace
