// A main form with an empty client area, and forms that write down what happens to them.
#pragma once
#include <gtest/gtest.h>
#include <QPointer>
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/StdCtrls.h"
#include "tests/support/Screen.h"
#include "tests/support/ScreenScript.h"

using namespace Qt::Literals::StringLiterals;

// What happened, in one line: "A.show A.activate …".
inline UnicodeString journal;

inline void Note(const UnicodeString& entry) {
    journal += (journal.isEmpty() ? u""_s : u" "_s) + entry;
}

inline std::string TakeJournal() {
    return std::exchange(journal, {}).toStdString();
}

class TTestForm : public TForm {
  public:
    TTestForm(const UnicodeString& name, TFormStyle style, TComponent* owner = Application) : TForm(owner) {
        SetName(name);
        SetFormStyle(style);
    }

    TEdit* NewEdit(const UnicodeString& name, int left = 8) {
        auto* edit = NewControl<TEdit>(this, this, name, QRect(left, 8, 80, 25));
        edit->OnEnter = [name](TComponent*) { Note(name + u".enter"_s); };
        edit->OnExit = [name](TComponent*) { Note(name + u".exit"_s); };
        return edit;
    }

    std::vector<int> Commands;
    // Steps of birth that throw: "controls", "construct", "create", "show".
    static inline UnicodeString Failing;

  protected:
    void CreateControls() override { Step(u"controls"_s); }
    void Construct() override {
        Step(u"construct"_s);
        OnCreate = [this](TComponent*) { Step(u"create"_s); };
        OnShow = [this](TComponent*) { Step(u"show"_s); };
        OnActivate = [this](TComponent*) { Note(Name() + u".activate"_s); };
        OnDeactivate = [this](TComponent*) { Note(Name() + u".deactivate"_s); };
        OnHide = [this](TComponent*) { Note(Name() + u".hide"_s); };
        OnDestroy = [this](TComponent*) { Note(Name() + u".destroy"_s); };
        OnResize = [this](TComponent*) { Note(Name() + u".resize"_s); };
    }
    void WndProc(TMessage& message) override {
        if (message.Msg == WM_SYSCOMMAND) Commands.push_back(int(message.WParam));
        if (message.Msg == WM_ENTERSIZEMOVE) Commands.push_back(WM_ENTERSIZEMOVE);
        TForm::WndProc(message);
    }

  private:
    void Step(const UnicodeString& step) {
        Note(Name() + u'.' + step);
        if (step == Failing) throw Exception(u"falhou"_s);
    }
};

class FormFixture : public testing::Test {
  protected:
    void SetUp() override {
        Main = NewForm<TTestForm>(u"Main"_s, fsMDIForm);
        Main->SetBounds(0, 0, 800, 600);
        Settle();
        TakeJournal();
    }

    void TearDown() override {
        TTestForm::Failing.clear();
        Application->OnException = nullptr;
        Application->OnActiveControlChange = nullptr;
        while (!Application->Forms().empty()) Application->Forms().back()->Free();
        TakeJournal();
    }

    // A control on a form, or on the panel of that name. It notes its changes and clicks.
    template <class T>
    static void Make(const QStringList& a) {
        auto* parent = dynamic_cast<TControl*>(Named(a[0]));
        const int left = a.value(2).toInt(), top = a.value(3, u"8"_s).toInt();
        T* made = NewControl<T>(parent->Form(), parent, a[1], QRect(left, top, 80, 25));
        made->OnClick = [made](TComponent*) { Note(made->Name() + u".click"_s); };
        if constexpr (requires { made->OnChange; }) {
            made->OnChange = [made](TComponent*) { Note(made->Name() + u".change"_s); };
        }
    }

    // Runs a table, where "Case" starts over.
    void Run(const char* path, TTextFunctions own = {}) {
        using A = QStringList;
        own.merge(TTextFunctions{
            {u"Case"_s, Does([this](const A&) { TearDown(), SetUp(); })},
            {u"Form"_s, Does([this](const A& a) { NewChild(a[0]); })},
            {u"Noting"_s,
             Does([](const A& a) { dynamic_cast<TTestForm*>(Named(a[0]))->NewEdit(a[1], a[2].toInt()); })},
            {u"Button"_s, Does(Make<TButton>)},
            {u"Edit"_s, Does(Make<TEdit>)},
            {u"Mask"_s, Does(Make<TMaskEdit>)},
            {u"Memo"_s, Does(Make<TMemo>)},
            {u"Combo"_s, Does(Make<TComboBox>)},
            {u"Check"_s, Does(Make<TCheckBox>)},
            {u"Panel"_s, Does(Make<TPanel>)},
            {u"Forget"_s, Does([](const A&) { TakeJournal(); })},
            {u"Journal"_s, [](const A&) { return QString::fromStdString(TakeJournal()); }}});
        CheckScreenTable(
            QString::fromUtf8(path), [] { return nullptr; }, own);
    }

    // A visible form of 300 by 200 in the client area.
    TTestForm* NewChild(const UnicodeString& name) {
        auto* form = NewForm<TTestForm>(name, fsMDIChild);
        form->SetBounds(20, 20, 300, 200);
        return form;
    }

    TTestForm* Main = nullptr;
};
