#include "tools/partimport/Busca.h"

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/IniFile.h"
#include "utils/funcoes/Documentos.h"
#include "utils/funcoes/Texto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kSecao = u"CNPJ"_s;

// A settings file holds one line for each value.
UnicodeString UmaLinha(const UnicodeString& texto) {
    return UnicodeString(texto).replace(u'\n', u' ').replace(u'\r', u' ').trimmed();
}

void Gravar(const TEmpresa& empresa, const UnicodeString& arquivo) {
    const std::pair<const char16_t*, const UnicodeString&> valores[] = {
        {u"CNPJ", empresa.CNPJ},         {u"Razao", empresa.Razao},   {u"Fantasia", empresa.Fantasia},
        {u"Endereco", empresa.Endereco}, {u"Numero", empresa.Numero}, {u"Complemento", empresa.Complemento},
        {u"CEP", empresa.CEP},           {u"Bairro", empresa.Bairro}, {u"Cidade", empresa.Cidade},
        {u"Estado", empresa.Estado}};
    TIniFile file(arquivo);
    const TIniUpdate update(file);
    for (const auto& [chave, valor] : valores)
        file.WriteString(kSecao, QString::fromUtf16(chave), UmaLinha(valor));
    file.WriteBool(kSecao, u"Usado"_s, true);
}

}  // namespace

void BuscarParticipante(const UnicodeString& cnpj, TFonte& fonte, const UnicodeString& arquivo) {
    const UnicodeString numero = GetNumbers(cnpj);
    if (!CNPJ(numero)) throw Exception(u"O CNPJ informado não é válido. Confira os 14 dígitos."_s);
    std::optional<TEmpresa> empresa = fonte.Buscar(numero);
    if (!empresa) throw Exception(u"Nenhuma empresa foi encontrada com o CNPJ %1."_s.arg(FormatCPF(numero)));
    empresa->CNPJ = numero;
    Gravar(*empresa, arquivo);
}
