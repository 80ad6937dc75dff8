#include <locale.h>
#include <xlsxwriter.h>
#include <algorithm>
#include <cerrno>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Files.h"
#include "tools/gridreport/Exporta.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int64_t kLinhasDaFolha = 1'048'575;  // besides the titles
constexpr int kTextoMaximo = 32767;
constexpr double kMaiorInteiro = 1e15;  // a sheet's numbers have 15 digits
constexpr double kPrimeiraData = 61;    // 1 March 1900; a sheet counts a day too many before it

// The library writes numbers as the C locale in use has them; a file has them with a point.
class TNumerosComPonto {
  public:
    TNumerosComPonto() : FBefore(uselocale(FPoint)) {}
    ~TNumerosComPonto() {
        uselocale(FBefore);
        freelocale(FPoint);
    }
    TNumerosComPonto(const TNumerosComPonto&) = delete;
    TNumerosComPonto& operator=(const TNumerosComPonto&) = delete;

  private:
    locale_t FPoint = newlocale(LC_ALL_MASK, "C", nullptr);
    locale_t FBefore;
};

// The workbook; ended without saving when the export stops.
class TPasta {
  public:
    explicit TPasta(const UnicodeString& arquivo) : FArquivo(arquivo), FDraft(arquivo) {
        QByteArray folder = QFile::encodeName(QFileInfo(arquivo).absolutePath());
        lxw_workbook_options options = {};
        options.constant_memory = LXW_TRUE;
        options.tmpdir = folder.data();
        errno = 0;
        FBook = workbook_new_opt(QFile::encodeName(FDraft.Name()).constData(), &options);
        FSheet = FBook ? workbook_add_worksheet(FBook, nullptr) : nullptr;
        if (!FSheet) Falhar();
    }
    ~TPasta() {
        if (FBook) lxw_workbook_free(FBook);
    }
    TPasta(const TPasta&) = delete;
    TPasta& operator=(const TPasta&) = delete;

    lxw_worksheet* Folha() const { return FSheet; }
    lxw_format* Formato(const char* codigo, bool negrito = false) {
        lxw_format* format = workbook_add_format(FBook);
        if (codigo) format_set_num_format(format, codigo);
        if (negrito) format_set_bold(format);
        return format;
    }
    // Packs the file; as long a work as writing the rows.
    void Fechar() {
        errno = 0;
        if (workbook_close(std::exchange(FBook, nullptr)) != LXW_NO_ERROR) Falhar();
    }
    void Entregar() { FDraft.Commit(); }

  private:
    [[noreturn]] void Falhar() { RaiseFileError(FArquivo, foWrite, errno ? errno : ENOSPC); }

    UnicodeString FArquivo;
    TFileDraft FDraft;
    lxw_workbook* FBook = nullptr;
    lxw_worksheet* FSheet = nullptr;
};

// A section of a mask on its way to a sheet's code.
struct TSecao {
    QString Codigo;
    bool Milhares = false;

    // A sheet wants the separator within the digits; a mask has it anywhere.
    QString Completa() const {
        static const QRegularExpression kInteiros(u"(?<!\\\\)[#0]+"_s);
        const QRegularExpressionMatch digits = kInteiros.match(Codigo);
        if (!Milhares || !digits.hasMatch()) return Codigo;
        const QString zeros = digits.captured().remove(u'#');
        return QString(Codigo).replace(digits.capturedStart(), digits.capturedLength(),
                                       u"#,##"_s + (zeros.isEmpty() ? u"#"_s : zeros));
    }
};

std::vector<TSecao> Secoes(const UnicodeString& mascara) {
    std::vector<TSecao> sections(1);
    QChar quote;
    for (const QChar c : mascara) {
        TSecao& section = sections.back();
        if (quote.isNull() ? c == u'"' || c == u'\'' : c == quote) {
            quote = quote.isNull() ? c : QChar();
        } else if (!quote.isNull() || !QStringView(u"#0.,;").contains(c)) {
            section.Codigo += u'\\' + QString(c);
        } else if (c == u';') {
            sections.emplace_back();
        } else if (c == u',') {
            section.Milhares = true;
        } else {
            section.Codigo += c;
        }
    }
    return sections;
}

// The file's own codes are the English ones; a spreadsheet in Portuguese shows them its way. What stands for
// itself in a mask is escaped, and a section that the mask leaves to its first one is written out.
QByteArray CodigoDaMascara(const UnicodeString& mascara) {
    QStringList codes;
    for (const TSecao& section : Secoes(mascara)) {
        const QString code = section.Completa();
        const QString sign = codes.size() == 1 ? u"-"_s : QString();
        codes << (code.isEmpty() && !codes.isEmpty() ? sign + codes[0] : code);
    }
    return codes.join(u';').toUtf8();
}

// Minutes are "n" with us; a format of anything but numbers and signs gives way to the usual one.
QByteArray CodigoDaData(const UnicodeString& formato, const QByteArray& usual) {
    const UnicodeString plain = formato.toLower();
    const bool simple = std::all_of(plain.begin(), plain.end(),
                                    [](QChar c) { return QStringView(u"dmyhns/:-. ").contains(c); });
    return plain.isEmpty() || !simple ? usual : UnicodeString(plain).replace(u'n', u'm').toLatin1();
}

QByteArray Codigo(const TColunaRelatorio& coluna) {
    switch (coluna.Tipo) {
        case ftDate: return CodigoDaData(coluna.Formato, "dd/mm/yyyy");
        case ftTime: return CodigoDaData(coluna.Formato, "hh:mm:ss");
        case ftTimeStamp: return CodigoDaData(coluna.Formato, "dd/mm/yyyy hh:mm:ss");
        default: break;
    }
    if (!coluna.Numero()) return {};
    if (coluna.Formato.isEmpty() && coluna.Tipo == ftBCD)
        return CodigoDaMascara(FormatoDeCasas(coluna.Casas));
    return CodigoDaMascara(coluna.Formato);
}

// Whether a sheet's number holds the value; what it does not hold is written as text.
bool CabeComoNumero(const TColunaRelatorio& coluna, const Variant& valor) {
    if (valor.Kind() == vkDateTime) return coluna.Tipo == ftTime || valor.ToDateTime().Value >= kPrimeiraData;
    if (!valor.IsNumber() || valor.Kind() == vkBoolean) return false;
    return coluna.Tipo == ftFloat || std::abs(double(valor.ToDecimal().Unscaled)) < kMaiorInteiro;
}

void Celula(lxw_worksheet* folha, lxw_row_t linha, lxw_col_t coluna, const Variant& valor,
            const TColunaRelatorio& sobre, lxw_format* formato) {
    if (valor.IsNull() || valor.IsUnassigned()) return;
    if (CabeComoNumero(sobre, valor)) {
        const double number = valor.Kind() == vkDateTime ? valor.ToDateTime().Value : valor.ToDouble();
        worksheet_write_number(folha, linha, coluna, number, formato);
    } else {
        UnicodeString text = valor.Kind() == vkText ? valor.ToText() : TextoDaCelula(sobre, valor);
        text.replace(u"\r\n"_s, u"\n"_s);  // a sheet shows the other sign
        worksheet_write_string(folha, linha, coluna, text.left(kTextoMaximo).toUtf8().constData(), nullptr);
    }
}

}  // namespace

void ExportarXlsx(const TRelatorio& relatorio, const UnicodeString& arquivo, const TAndamento& andamento) {
    if (relatorio.Linhas > kLinhasDaFolha)
        throw Exception(u"Uma folha XLSX comporta %1 linhas; use o formato CSV."_s.arg(kLinhasDaFolha));
    const TNumerosComPonto numeros;
    TPasta pasta(arquivo);
    lxw_format* bold = pasta.Formato(nullptr, true);
    std::vector<lxw_format*> formats;
    for (size_t i = 0; i < relatorio.Colunas.size(); ++i) {
        const TColunaRelatorio& column = relatorio.Colunas[i];
        const QByteArray code = Codigo(column);
        formats.push_back(code.isEmpty() ? nullptr : pasta.Formato(code.constData()));
        worksheet_set_column(pasta.Folha(), lxw_col_t(i), lxw_col_t(i), column.Largura + 2, nullptr);
        worksheet_write_string(pasta.Folha(), 0, lxw_col_t(i), column.Titulo.toUtf8().constData(), bold);
    }
    worksheet_freeze_panes(pasta.Folha(), 1, 0);
    lxw_row_t row = 0;
    relatorio.ParaCadaLinha(
        [&](const std::vector<Variant>& valores) {
            ++row;
            for (size_t i = 0; i < valores.size(); ++i)
                Celula(pasta.Folha(), row, lxw_col_t(i), valores[i], relatorio.Colunas[i], formats[i]);
        },
        [&](int64_t done, int64_t total) { return !andamento || andamento(done, 2 * total); });
    pasta.Fechar();
    if (andamento && !andamento(relatorio.Linhas, relatorio.Linhas)) Abort();
    pasta.Entregar();
}
