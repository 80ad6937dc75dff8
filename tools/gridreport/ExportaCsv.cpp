#include <cerrno>
#include <QFile>

#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/FormatSettings.h"
#include "tools/gridreport/Exporta.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Rows are gathered and written in pieces of about this size.
constexpr qsizetype kPedaco = 1 << 16;

UnicodeString Campo(const UnicodeString& texto) {
    const bool quoted =
        texto.contains(u';') || texto.contains(u'"') || texto.contains(u'\n') || texto.contains(u'\r');
    return quoted ? u"\""_s + UnicodeString(texto).replace(u'"', u"\"\""_s) + u"\""_s : texto;
}

UnicodeString Valor(const TColunaRelatorio& coluna, const Variant& valor) {
    if (valor.IsNull() || valor.IsUnassigned()) return {};
    if (valor.IsNumber() && valor.Kind() != vkBoolean) return valor.ToText();
    return Campo(valor.Kind() == vkText ? valor.ToText() : TextoDaCelula(coluna, valor));
}

class TEscritor {
  public:
    explicit TEscritor(const UnicodeString& arquivo)
        : FArquivo(arquivo), FDraft(arquivo), FFile(FDraft.Name()), FPendente(u"\uFEFF"_s) {
        errno = 0;
        if (!FFile.open(QIODevice::WriteOnly)) RaiseFileError(arquivo, foWrite, errno ? errno : EACCES);
    }
    void Linha(const QStringList& campos) {
        FPendente += campos.join(u';') + u"\r\n"_s;
        if (FPendente.size() >= kPedaco) Descarregar();
    }
    void Terminar() {
        Descarregar();
        FFile.close();
        FDraft.Commit();
    }

  private:
    void Descarregar() {
        const QByteArray bytes = std::exchange(FPendente, {}).toUtf8();
        errno = 0;
        if (FFile.write(bytes) != bytes.size() || !FFile.flush())
            RaiseFileError(FArquivo, foWrite, errno ? errno : ENOSPC);
    }

    UnicodeString FArquivo;
    TFileDraft FDraft;
    QFile FFile;
    UnicodeString FPendente;
};

}  // namespace

void ExportarCsv(const TRelatorio& relatorio, const UnicodeString& arquivo, const TAndamento& andamento) {
    TEscritor escritor(arquivo);
    QStringList campos;
    for (const TColunaRelatorio& coluna : relatorio.Colunas) campos << Campo(coluna.Titulo);
    escritor.Linha(campos);
    relatorio.ParaCadaLinha(
        [&](const std::vector<Variant>& valores) {
            campos.clear();
            for (size_t i = 0; i < valores.size(); ++i) campos << Valor(relatorio.Colunas[i], valores[i]);
            escritor.Linha(campos);
        },
        andamento);
    escritor.Terminar();
}
