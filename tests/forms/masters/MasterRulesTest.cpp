#include "forms/masters/MasterRules.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(MasterRules, TellsTheFirstReasonAgainstOpening) {
    using R = TRefusal;
    const struct {
        const char* Case;
        TOpening Opening;
        R::TKind Kind;
        const char16_t* Text;
    } cases[] = {{"no form before all else",
                  {kAlterar, false, false, ktFieldProviderFlag, false},
                  R::Erro,
                  u"Esse módulo do sistema está disponível somente em modo consulta."},
                 {"change nothing",
                  {kAlterar, true, false, ktFieldProviderFlag, false},
                  R::Informacao,
                  u"Não existe nenhum registro a ser alterado."},
                 {"delete nothing",
                  {kExcluir, true, false, ktNone, true},
                  R::Informacao,
                  u"Não existe nenhum registro a ser excluido."},
                 {"view nothing",
                  {kVisualizar, true, false, ktNone, true},
                  R::Informacao,
                  u"Não existe nenhum registro a ser visualizado."},
                 {"include without a key",
                  {kIncluir, true, false, ktFieldProviderFlag, false},
                  R::Excecao,
                  u"Nenhuma PrimaryKey foi informada."}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        const auto refusal = RefuseOpening(c.Opening);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->Kind, c.Kind);
        EXPECT_EQ(refusal->Text, QString::fromUtf16(c.Text));
    }
    EXPECT_FALSE(RefuseOpening({kIncluir, true, false, ktNone, false}));
    EXPECT_FALSE(RefuseOpening({kExcluir, true, true, ktFieldProviderFlag, true}));
}

TEST(MasterRules, BringsTheOpenerUpToDate) {
    using U = TOwnerUpdate;
    const struct {
        const char* Case;
        TClosing Closing;
        U::TStep Step;
        bool Refresh;
    } cases[] = {
        {"cancelled insert", {kIncluir, false, false, true, vtFilter, 0, false}, U::Nothing, true},
        {"insert, filter, known id",
         {kIncluir, true, false, true, vtFilter, 7, false},
         U::FilterOwner,
         false},
        {"insert, filter, unknown id", {kIncluir, true, false, true, vtFilter, 0, false}, U::ReopenOwn, true},
        {"insert, list", {kIncluir, true, false, true, vtList, 7, false}, U::OwnerAtLast, false},
        {"insert, no view", {kIncluir, true, false, false, vtFilter, 7, false}, U::ReopenOwnAtLast, false},
        {"change", {kAlterar, true, false, true, vtFilter, 7, true}, U::Nothing, true},
        {"change, no view", {kAlterar, true, false, false, vtFilter, 7, true}, U::Nothing, false},
        {"delete", {kExcluir, true, false, true, vtList, 0, true}, U::ReopenOwner, false},
        {"delete, no view", {kExcluir, true, false, false, vtList, 0, true}, U::ReopenOwn, false},
        {"cancelled delete", {kExcluir, false, false, true, vtList, 0, true}, U::Nothing, true},
        {"shared insert, unknown id", {kIncluir, true, true, true, vtFilter, 0, false}, U::ReopenOwn, false},
        {"shared insert, known id", {kIncluir, true, true, true, vtFilter, 7, false}, U::Nothing, false},
        {"shared soft delete", {kExcluir, true, true, true, vtList, 0, true}, U::ReopenOwn, false},
        {"shared delete", {kExcluir, true, true, true, vtList, 0, false}, U::Nothing, false},
        {"shared change", {kAlterar, true, true, true, vtList, 7, true}, U::Nothing, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        const TOwnerUpdate update = OwnerUpdateAfter(c.Closing);
        EXPECT_EQ(update.Step, c.Step);
        EXPECT_EQ(update.RefreshOwner, c.Refresh);
    }
}

}  // namespace
