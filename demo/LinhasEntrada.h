// The rows of the sample's entry dialogs, one below the other: a caption and its edit under it.
//
//     TEdit* nome = NewEdit(this, u"EdtNome"_s, u"&Nome"_s, {kMargin, kTop, 200, kEditHeight});
#pragma once
#include "forms/masters/UEnt_Master.h"
#include "platform/ui/StdCtrls.h"

namespace entrada {

constexpr int kMargin = 16;
constexpr int kLabelHeight = 18;
constexpr int kRowHeight = kLabelHeight + kEditHeight + 13;
constexpr int kTop = TFrmEnt_Master::kStripBottom + kMargin;

// `place` is the caption's; the edit stands kLabelHeight lower. The caption's letter leads to the edit, which
// is called as the caption reads.
TEdit* NewEdit(TFrmEnt_Master* form, const UnicodeString& name, const UnicodeString& caption,
               const QRect& place);

}  // namespace entrada
