// A main form with an empty client area, and forms that write down what happens to them.
#pragma once
#include <gtest/gtest.h>
#include <QPointer>
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/StdCtrls.h"
#include "tests/support/Screen.h"

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

    // A visible form of 300 by 200 in the client area.
    TTestForm* NewChild(const UnicodeString& name) {
        auto* form = NewForm<TTestForm>(name, fsMDIChild);
        form->SetBounds(20, 20, 300, 200);
        return form;
    }

    TTestForm* Main = nullptr;
};
