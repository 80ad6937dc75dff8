#include "forms/masters/Critica.h"

#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/Form.h"
#include "utils/funcoes/Documentos.h"
#include "utils/funcoes/Inscricao.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using TFault = std::optional<UnicodeString>;

constexpr int kCpfLength = 11;
constexpr int kCnpjLength = 14;

bool IsNumber(const TField& field) {
    return dynamic_cast<const TNumericField*>(&field) != nullptr;
}

bool IsTextOrDate(const TField& field) {
    return dynamic_cast<const TStringField*>(&field) || dynamic_cast<const TDateTimeField*>(&field) ||
           dynamic_cast<const TSQLTimeStampField*>(&field);
}

UnicodeString MissingText(const TField& field) {
    return u"Entre com um valor para o campo \"%1\" antes de prosseguir."_s.arg(field.DisplayLabel());
}

bool Passes(bool (*check)(const UnicodeString&), const UnicodeString& number) {
    try {
        return check(number);
    } catch (const EConvertError&) {
        return false;  // a letter among the digits
    }
}

TFault CheckEdit(const TDBEdit& edit) {
    const TField* field = edit.Field();
    if (!field) return std::nullopt;
    if (!edit.ReadOnly()) {
        if (TFault fault = CriticaObrigatorio(*field)) return fault;
    }
    if (TFault fault = CriticaInscricao(*field)) return fault;
    return SameText(edit.DataField(), u"NR_CPF"_s) ? CriticaCPF(field->AsString()) : std::nullopt;
}

TFault CheckChoice(const TField* field, const UnicodeString& shown) {
    if (!field || !field->Required() || !shown.isEmpty()) return std::nullopt;
    return MissingText(*field);
}

TFault CheckComponent(TComponent* component) {
    if (const auto* edit = dynamic_cast<TDBEdit*>(component)) return CheckEdit(*edit);
    if (const auto* combo = dynamic_cast<TDBComboBox*>(component)) {
        return CheckChoice(combo->Field(), combo->Field() ? combo->Field()->AsString() : UnicodeString());
    }
    if (auto* lookup = dynamic_cast<TDBLookupComboBox*>(component)) {
        return CheckChoice(lookup->Field(), lookup->Text());
    }
    return std::nullopt;
}

[[noreturn]] void Report(const UnicodeString& fault, TControl* control,
                         const std::function<void(TControl*)>& showPage) {
    Application->MessageBox(fault, u"Aviso"_s, MB_ICONWARNING);
    showPage(control);
    if (control->CanFocus()) control->SetFocus();
    Abort();
}

}  // namespace

std::optional<UnicodeString> CriticaObrigatorio(const TField& field) {
    if (!field.Required()) return std::nullopt;
    const bool missing = IsNumber(field)       ? !(field.AsFloat() > 0)
                         : IsTextOrDate(field) ? field.AsString().trimmed().isEmpty()
                                               : false;
    return missing ? TFault(MissingText(field)) : std::nullopt;
}

std::optional<UnicodeString> CriticaCPF(const UnicodeString& number) {
    if (number.isEmpty()) return std::nullopt;
    if (number.size() == kCpfLength) {
        if (Passes(CPF, number)) return std::nullopt;
        return u"Número de CPF inválido! Entre com um CPF válido antes de prosseguir."_s;
    }
    if (number.size() == kCnpjLength) {
        if (Passes(CNPJ, number)) return std::nullopt;
        return u"Número de CNPJ inválido! Entre com um CNPJ válido antes de prosseguir."_s;
    }
    return u"Número de CPF ou CNPJ inválido! Entre com um CNPJ válido antes de prosseguir."_s;
}

std::optional<UnicodeString> CriticaInscricao(const TField& field) {
    const bool registration =
        SameText(field.FieldName(), u"NR_INS_EST"_s) || SameText(field.FieldName(), u"NR_IDE"_s);
    const TField* document = registration ? field.DataSet()->FindField(u"NR_CPF"_s) : nullptr;
    if (!document || document->AsString().size() != kCnpjLength) return std::nullopt;
    const UnicodeString number = field.AsString();
    const TField* state = field.DataSet()->FindField(u"NM_EST"_s);
    if (number.isEmpty() || number == u"ISENTO") return std::nullopt;
    if (InscEstadual(number, state ? state->AsString() : UnicodeString())) return std::nullopt;
    return u"Inscrição Estadual inválida! Entre com uma Inscrição Estadual válido antes de prosseguir."_s;
}

void CriticaBranco(TForm& form, const std::function<void(TControl*)>& showPage) {
    for (int i = 0; i < form.ComponentCount(); ++i) {
        if (const TFault fault = CheckComponent(form.Components(i))) {
            Report(*fault, dynamic_cast<TControl*>(form.Components(i)), showPage);
        }
    }
}
