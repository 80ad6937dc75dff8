#include "tools/partimport/Fonte.h"

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/IniFile.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

TAjustes LerAjustes(const UnicodeString& arquivo) {
    const TIniFile file(arquivo);
    TAjustes ajustes;
    ajustes.Fonte = file.ReadString(u"BUSCA", u"Fonte", ajustes.Fonte);
    ajustes.Arquivo = file.ReadString(u"BUSCA", u"Arquivo", ajustes.Arquivo);
    ajustes.Endereco = file.ReadString(u"BUSCA", u"Endereco", {});
    ajustes.Tempo = std::max(1, file.ReadInteger(u"BUSCA", u"Tempo", ajustes.Tempo));
    return ajustes;
}

std::unique_ptr<TFonte> CriarFonte(const TAjustes& ajustes) {
    if (ajustes.Fonte.compare(u"CSV", Qt::CaseInsensitive) == 0) {
        const bool whole = ajustes.Arquivo.startsWith(u'/');
        return FonteCsv(whole ? ajustes.Arquivo : JoinPath(ProgramFolder(), ajustes.Arquivo));
    }
    if (ajustes.Fonte.compare(u"HTTP", Qt::CaseInsensitive) != 0)
        throw Exception(
            u"A fonte \"%1\" de PartImport.ini não existe. Use CSV ou HTTP."_s.arg(ajustes.Fonte));
    if (!ajustes.Endereco.contains(u"{cnpj}"_s))
        throw Exception(u"Informe em PartImport.ini o endereço do serviço, com {cnpj} no lugar do número."_s);
    return FonteHttp(ajustes.Endereco, ajustes.Tempo);
}

UnicodeString* CampoDe(TEmpresa& empresa, const UnicodeString& coluna) {
    const std::pair<const char16_t*, UnicodeString*> campos[] = {
        {u"cnpj", &empresa.CNPJ},         {u"razao", &empresa.Razao},
        {u"fantasia", &empresa.Fantasia}, {u"endereco", &empresa.Endereco},
        {u"numero", &empresa.Numero},     {u"complemento", &empresa.Complemento},
        {u"cep", &empresa.CEP},           {u"bairro", &empresa.Bairro},
        {u"cidade", &empresa.Cidade},     {u"estado", &empresa.Estado}};
    for (const auto& [nome, campo] : campos) {
        if (coluna.trimmed().compare(QString::fromUtf16(nome), Qt::CaseInsensitive) == 0) return campo;
    }
    return nullptr;
}
