#include "tools/gridreport/Relatorio.h"

#include <algorithm>

#include "platform/data/RowsFile.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/EditMask.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/IniFile.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMaiorLargura = 200;
constexpr int64_t kEntreAvisos = 1000;  // rows

int OrigemDe(const std::vector<TRowsColumn>& columns, const UnicodeString& campo) {
    for (size_t i = 0; i < columns.size(); ++i) {
        if (SameText(columns[i].Name, campo)) return int(i);
    }
    throw Exception(
        u"Os dois arquivos de impressão não pertencem um ao outro: falta o campo '%1'. Imprima de novo."_s
            .arg(campo));
}

TColunaRelatorio LerColuna(const TIniFile& ini, const UnicodeString& section,
                           const std::vector<TRowsColumn>& columns) {
    const UnicodeString campo = ini.ReadString(section, u"FieldName", {});
    const int origem = OrigemDe(columns, campo);
    const TRowsColumn& column = columns[size_t(origem)];
    return {ini.ReadString(section, u"DisplayLabel", campo),
            ini.ReadString(section, u"DisplayFormat", {}),
            ini.ReadString(section, u"EditMask", {}),
            column.Type,
            column.Type == ftBCD ? column.Size : 0,
            std::clamp(ini.ReadInteger(section, u"DisplayWidth", 10), 1, kMaiorLargura),
            origem};
}

UnicodeString TextoDoNumero(const TColunaRelatorio& coluna, const Variant& valor) {
    if (coluna.Tipo == ftFloat) return FormatFloat(coluna.Formato, valor.ToExtended());
    if (!coluna.Formato.isEmpty()) return FormatDecimal(coluna.Formato, valor.ToDecimal());
    if (coluna.Tipo != ftBCD) return valor.ToText();
    return FormatDecimal(FormatoDeCasas(coluna.Casas), valor.ToDecimal());
}

UnicodeString TextoDaData(const TColunaRelatorio& coluna, TDateTime valor) {
    if (!coluna.Formato.isEmpty()) return FormatDateTime(coluna.Formato, valor);
    if (coluna.Tipo == ftDate) return DateToStr(valor);
    return coluna.Tipo == ftTime ? TimeToStr(valor) : DateTimeToStr(valor);
}

UnicodeString TextoCorrido(const TColunaRelatorio& coluna, const UnicodeString& texto) {
    if (!coluna.Mascara.isEmpty() && !texto.isEmpty()) return TEditMask(coluna.Mascara).FormatText(texto);
    return texto.contains(u'\n') || texto.contains(u'\r') ? texto.simplified() : texto;
}

}  // namespace

bool TColunaRelatorio::Numero() const {
    return Tipo == ftSmallint || Tipo == ftInteger || Tipo == ftLargeint || Tipo == ftFloat || Tipo == ftBCD;
}

bool TColunaRelatorio::TemTotal() const {
    return Numero() && (Tipo == ftFloat || Casas > 0 || !Formato.isEmpty());
}

UnicodeString FormatoDeCasas(int casas) {
    return casas > 0 ? u"#,##0."_s + UnicodeString(casas, u'0') : u"#,##0"_s;
}

UnicodeString TextoDaCelula(const TColunaRelatorio& coluna, const Variant& valor) {
    switch (valor.Kind()) {
        case vkUnassigned:
        case vkNull: return {};
        case vkBoolean: return valor.ToBool() ? u"SIM"_s : u"NÃO"_s;
        case vkDateTime: return TextoDaData(coluna, valor.ToDateTime());
        case vkBytes: return u"(BLOB)"_s;
        default: break;
    }
    return valor.IsNumber() ? TextoDoNumero(coluna, valor) : TextoCorrido(coluna, valor.ToText());
}

TRelatorio LerDefinicao(const UnicodeString& definicao, const UnicodeString& linhas) {
    ReadWholeFile(definicao);  // says why it cannot be read
    const TIniFile ini(definicao);
    TRelatorio report;
    report.Arquivo = std::make_shared<TRowsReader>(linhas);
    report.Nome = ini.ReadString(u"INFORMATION", u"Name", {});
    report.Paisagem = ini.ReadInteger(u"INFORMATION", u"Model", 0) != 0;
    report.Linhas = report.Arquivo->Rows();
    const int count = ini.ReadInteger(u"INFORMATION", u"Count", 0);
    for (int i = 0; i < count; ++i) {
        const UnicodeString section = u"FIELD_%1"_s.arg(i, 2, 10, QLatin1Char('0'));
        if (!ini.SectionExists(section)) break;
        if (ini.ReadBool(section, u"Visible", true))
            report.Colunas.push_back(LerColuna(ini, section, report.Arquivo->Columns()));
    }
    if (report.Colunas.empty())
        throw Exception(u"O arquivo '%1' não descreve nenhuma coluna a imprimir."_s.arg(definicao));
    return report;
}

void TRelatorio::ParaCadaLinha(const std::function<void(const std::vector<Variant>& valores)>& linha,
                               const TAndamento& andamento) const {
    Arquivo->First();
    std::vector<Variant> row, shown(Colunas.size());
    for (int64_t done = 1; Arquivo->Next(row); ++done) {
        for (size_t i = 0; i < shown.size(); ++i) shown[i] = row.at(size_t(Colunas[i].Origem));
        linha(shown);
        if (done % kEntreAvisos == 0 && andamento && !andamento(done, Linhas)) Abort();
    }
}
