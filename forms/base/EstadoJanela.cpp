// The window-state file of the base form: the properties of a form class, and its geometry among them.
#include "forms/base/UFrmBase.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCascadeStep = 20;
constexpr int kCascadeForms = 5;
constexpr int kLargestSize = 16384;  // more than any screen: a stored size beyond it is garbage

UnicodeString StateFolder() {
    return JoinPath(ProgramFolder(), u"Temp"_s);
}

// A screen works without its stored state, so the user hears of a state file that cannot be written only
// once.
void ReportOnce() {
    static bool reported = false;
    if (!std::exchange(reported, true)) Application->HandleException(std::current_exception());
}

int SaneSize(int stored, int fallback) {
    return stored > 0 && stored <= kLargestSize ? stored : fallback;
}

}  // namespace

void TFrmBase::OpenWindowConfig() {
    const int number = Module->Interface() ? Module->Interface()->StateFileNumber() : 0;
    try {
        EnsureFolder(StateFolder());
    } catch (const EInOutError&) {
        ReportOnce();
    }
    FConfig = std::make_unique<TIniFile>(JoinPath(StateFolder(), IntToStr(number) + u"ws.dat"_s));
}

void TFrmBase::WriteState(const std::function<void(TIniFile&)>& write) {
    if (!FConfig) return;
    try {
        write(*FConfig);
    } catch (const EInOutError&) {
        ReportOnce();
    }
}

void TFrmBase::SaveWindowState() {
    WriteState([this](TIniFile& file) {
        TIniUpdate together(file);
        const UnicodeString section = SectionName();
        file.WriteBool(section, u"Maximized"_s, FMaximized);
        file.WriteInteger(section, u"Height"_s, FMaximized ? FOrgHeight : Height());
        file.WriteInteger(section, u"Width"_s, FMaximized ? FOrgWidth : Width());
    });
}

void TFrmBase::LoadWindowState() {
    SetHeight(SaneSize(GetIntWindowProp(u"Height"_s, Height()), Height()));
    SetWidth(SaneSize(GetIntWindowProp(u"Width"_s, Width()), Width()));
    if (!Embedded()) return;
    if (!FMainForm) Cascade();
    if (GetBoolWindowProp(u"Maximized"_s, false)) {
        RememberGeometry();
        Maximize();
    }
}

void TFrmBase::Cascade() {
    if (!Module->Interface()) return;
    const int k = (Module->Interface()->GetCountActiveModules() - 2) % kCascadeForms;
    SetLeft(k * kCascadeStep);
    SetTop(k * (CaptionHeight() + 5));
    FitIntoClientArea();
}

// A size that the user has had on his screen before is his; the one that the class was designed with is not.
void TFrmBase::FitIntoClientArea() {
    const TControl* area = MainClient();
    if (BorderStyle() != bsSizeable || !area->Widget()->isVisible()) return;
    if (GetIntWindowProp(u"Width"_s, 0) == 0) SetWidth(std::min(Width(), area->Width() - Left()));
    if (GetIntWindowProp(u"Height"_s, 0) == 0) SetHeight(std::min(Height(), area->Height() - Top()));
}

int TFrmBase::GetIntWindowProp(const UnicodeString& PropName, int Default) const {
    return FConfig ? FConfig->ReadInteger(SectionName(), PropName, Default) : Default;
}

UnicodeString TFrmBase::GetStrWindowProp(const UnicodeString& PropName, const UnicodeString& Default) const {
    return FConfig ? FConfig->ReadString(SectionName(), PropName, Default) : Default;
}

bool TFrmBase::GetBoolWindowProp(const UnicodeString& PropName, bool Default) const {
    return FConfig ? FConfig->ReadBool(SectionName(), PropName, Default) : Default;
}

double TFrmBase::GetFloatWindowProp(const UnicodeString& PropName, double Default) const {
    return FConfig ? FConfig->ReadFloat(SectionName(), PropName, Default) : Default;
}

void TFrmBase::SetIntWindowProp(const UnicodeString& PropName, int Value) {
    WriteState([&](TIniFile& file) { file.WriteInteger(SectionName(), PropName, Value); });
}

void TFrmBase::SetStrWindowProp(const UnicodeString& PropName, const UnicodeString& Value) {
    WriteState([&](TIniFile& file) { file.WriteString(SectionName(), PropName, Value); });
}

void TFrmBase::SetBoolWindowProp(const UnicodeString& PropName, bool Value) {
    WriteState([&](TIniFile& file) { file.WriteBool(SectionName(), PropName, Value); });
}

void TFrmBase::SetFloatWindowProp(const UnicodeString& PropName, double Value) {
    WriteState([&](TIniFile& file) { file.WriteFloat(SectionName(), PropName, Value); });
}

void TFrmBase::DeleteProp(const UnicodeString& PropName) {
    WriteState([&](TIniFile& file) { file.DeleteKey(SectionName(), PropName); });
}

void TFrmBase::ClearProps() {
    WriteState([&](TIniFile& file) { file.EraseSection(SectionName()); });
}

void TFrmBase::UpdateProps(const std::function<void()>& writes) {
    WriteState([&](TIniFile& file) {
        TIniUpdate together(file);
        writes();
    });
}
