#include "db/TextoFiltro.h"

#include <gtest/gtest.h>

#include "tests/support/TextTable.h"

namespace {

const std::map<QString, TCampoFiltro> kFields = {{"nome", {"C.NOME", TTipoCampo::Texto, "o'brien*jr"}},
                                                 {"linhas", {"C.NOME", TTipoCampo::Texto, "x\r\nwhere\n'"}},
                                                 {"data", {"C.DATA", TTipoCampo::Data, "07/03/2024"}},
                                                 {"valor", {"C.VALOR", TTipoCampo::Numero, "1,5"}},
                                                 {"ativo", {"C.ATIVO", TTipoCampo::Outro, "it's*"}}};

QString Composed(const QStringList& a) {
    TTextoFiltro filtro{.Condicao = a[2], .Ordem = a[3], .Chaves = a[4]};
    const QStringList fields = a[1].split(' ', Qt::SkipEmptyParts);
    for (const QString& field : fields) filtro.Campos.push_back(kFields.at(field));
    filtro.Faixa = fields.size() == 2 && fields[0] == fields[1];
    const UnicodeString once = ComporFiltro(a[0], filtro);
    const bool cutAgain = !once.contains("\nWHERE C.") || ComporFiltro(once, filtro) == once;
    return cutAgain ? once : "another text the second time";
}

TEST(ComporFiltro, WritesTheFiltersLinesAndReplacesThem) {
    CheckTextTable(DB_TESTS "/tables/filtro.txt", {{"Filtro", Composed}});
}

}  // namespace
