#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/Guard.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// An answer, its button and its place among the buttons.
struct TAnswer {
    int Id;
    QMessageBox::ButtonRole Role;
    UnicodeString Text;
};

std::vector<TAnswer> AnswersOf(int flags) {
    const TAnswer yes{IDYES, QMessageBox::YesRole, u"&Sim"_s};
    const TAnswer no{IDNO, QMessageBox::NoRole, u"&Não"_s};
    const TAnswer ok{IDOK, QMessageBox::AcceptRole, u"OK"_s};
    const TAnswer cancel{IDCANCEL, QMessageBox::RejectRole, u"Cancelar"_s};
    switch (flags & MB_TYPEMASK) {
        case MB_OKCANCEL: return {ok, cancel};
        case MB_YESNO: return {yes, no};
        case MB_YESNOCANCEL: return {yes, no, cancel};
        default: return {ok};
    }
}

QMessageBox::Icon IconOf(int flags) {
    switch (flags & MB_ICONMASK) {
        case MB_ICONERROR: return QMessageBox::Critical;
        case MB_ICONQUESTION: return QMessageBox::Question;
        case MB_ICONWARNING: return QMessageBox::Warning;
        case MB_ICONINFORMATION: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

// The last answer is the one of Escape: Cancel, No, or the only OK.
int ShowBox(QMessageBox& box, int flags) {
    const std::vector<TAnswer> answers = AnswersOf(flags);
    std::vector<QPushButton*> buttons;
    for (const TAnswer& answer : answers) buttons.push_back(box.addButton(answer.Text, answer.Role));
    box.setDefaultButton(buttons[flags & MB_DEFBUTTON2 && buttons.size() > 1 ? 1 : 0]);
    box.setEscapeButton(buttons.back());
    RunLoop([&] { box.exec(); });
    for (size_t i = 0; i < buttons.size(); ++i) {
        if (box.clickedButton() == buttons[i]) return answers[i].Id;
    }
    return answers.back().Id;
}

// While no window of the program is the active one, as when another program was brought to the front during a
// wait, a box without an owner could lie behind the window that it blocks.
QWidget* OwnerOfBox() {
    if (QWidget* active = QApplication::activeWindow()) return active;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    TForm* form = Application->ActiveForm();
    return form && form->window()->isVisible() ? form->window() : nullptr;
}

}  // namespace

int TApplication::MessageBox(const UnicodeString& text, const UnicodeString& caption, int flags) {
    if (OnMessageBox) return OnMessageBox({text, caption, flags});
    QMessageBox box(IconOf(flags), caption, text, QMessageBox::NoButton, OwnerOfBox());
    box.setTextFormat(Qt::PlainText);
    return ShowBox(box, flags);
}
