#include "demo/dados/Insercao.h"

#include <QStringList>

#include "platform/data/Connection.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

TInsercao::TInsercao(TFDConnection& connection, const UnicodeString& tabela, const TStringArray& colunas)
    : FQuery(new TFDQuery(&connection)) {
    const QStringList nomes(colunas.begin(), colunas.end());
    FQuery->SetConnection(&connection);
    FQuery->SQL()->SetText(
        u"INSERT INTO %1 (%2) VALUES (:%3)"_s.arg(tabela, nomes.join(u", "), nomes.join(u", :")));
    FQuery->Prepare();
}

TInsercao::~TInsercao() {
    FQuery->Free();
}

void TInsercao::Inserir(const std::vector<Variant>& valores) {
    for (size_t i = 0; i < valores.size(); ++i) FQuery->Params()[static_cast<int>(i)]->SetValue(valores[i]);
    FQuery->ExecSQL();
}

Variant NuloSeVazio(const UnicodeString& texto) {
    return texto.isEmpty() ? Variant::Null() : Variant(texto);
}
