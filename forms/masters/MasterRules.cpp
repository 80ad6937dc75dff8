#include "forms/masters/MasterRules.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString NoRecordText(unsigned char mode) {
    switch (mode) {
        case kAlterar: return u"Não existe nenhum registro a ser alterado."_s;
        case kExcluir: return u"Não existe nenhum registro a ser excluido."_s;
        default: return u"Não existe nenhum registro a ser visualizado."_s;
    }
}

TOwnerUpdate::TStep StepAfterInsert(const TClosing& closing) {
    if (!closing.OwnerIsView) return TOwnerUpdate::ReopenOwnAtLast;
    if (closing.VisType == vtList) return TOwnerUpdate::OwnerAtLast;
    return closing.LastID > 0 ? TOwnerUpdate::FilterOwner : TOwnerUpdate::ReopenOwn;
}

TOwnerUpdate::TStep StepOnSharedDataSet(const TClosing& closing) {
    const bool unknownInsert = closing.Mode == kIncluir && closing.LastID == 0;
    const bool markedDeleted = closing.Mode == kExcluir && closing.SoftDelete;
    return unknownInsert || markedDeleted ? TOwnerUpdate::ReopenOwn : TOwnerUpdate::Nothing;
}

TOwnerUpdate::TStep StepOnOwnDataSet(const TClosing& closing) {
    if (!closing.Confirmed) return TOwnerUpdate::Nothing;
    if (closing.Mode == kIncluir) return StepAfterInsert(closing);
    if (closing.Mode == kExcluir)
        return closing.OwnerIsView ? TOwnerUpdate::ReopenOwner : TOwnerUpdate::ReopenOwn;
    return TOwnerUpdate::Nothing;
}

}  // namespace

bool ModeEdits(unsigned char mode) {
    return mode == kIncluir || mode == kAlterar;
}

UnicodeString ModeSuffix(unsigned char mode) {
    switch (mode) {
        case kIncluir: return u" [Incluindo]"_s;
        case kAlterar: return u" [Alterando]"_s;
        case kExcluir: return u" [Excluindo]"_s;
        case kVisualizar: return u" [Visualizando]"_s;
        default: return {};
    }
}

std::optional<TRefusal> RefuseOpening(const TOpening& opening) {
    if (!opening.HasForm) {
        return TRefusal{TRefusal::Erro,
                        u"Esse módulo do sistema está disponível somente em modo consulta."_s};
    }
    if (opening.Mode != kIncluir && !opening.HasRecords) {
        return TRefusal{TRefusal::Informacao, NoRecordText(opening.Mode)};
    }
    if (opening.KeyType == ktFieldProviderFlag && !opening.HasKey) {
        return TRefusal{TRefusal::Excecao, u"Nenhuma PrimaryKey foi informada."_s};
    }
    return std::nullopt;
}

TOwnerUpdate OwnerUpdateAfter(const TClosing& closing) {
    if (closing.SharedDataSet) return {StepOnSharedDataSet(closing), false};
    const TOwnerUpdate::TStep step = StepOnOwnDataSet(closing);
    // An opener that the step queries anew shows the present state already.
    const bool queried = step == TOwnerUpdate::OwnerAtLast || step == TOwnerUpdate::FilterOwner ||
                         step == TOwnerUpdate::ReopenOwner;
    return {step, closing.OwnerIsView && !queried};
}

UnicodeString ListBehindText(const TClosing& closing, const UnicodeString& cause) {
    const UnicodeString list = u"a lista não pôde ser atualizada: "_s + cause;
    if (!closing.Confirmed) return u"A"_s + list.sliced(1);
    const UnicodeString done = closing.Mode == kExcluir ? u"excluído"_s : u"salvo"_s;
    return u"O registro foi "_s + done + u", mas "_s + list;
}
