#include <QStringDecoder>
#include <QStringList>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "tools/partimport/Fonte.h"
#include "utils/funcoes/Texto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString Decodificar(const QByteArray& bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? FromAnsi(bytes) : text;
}

// The file's records, cut at semicolons and line ends outside of quotes.
class TLeitor {
  public:
    explicit TLeitor(const UnicodeString& texto) : FTexto(texto) {}

    bool Fim() const { return FEm >= FTexto.size(); }

    QStringList Proximo() {
        QStringList valores;
        do {
            valores << Valor();
        } while (Separador());
        return valores;
    }

  private:
    UnicodeString Valor() {
        UnicodeString valor;
        bool aspas = false;
        for (; !Fim(); ++FEm) {
            const QChar c = FTexto[FEm];
            if (c == u'"') {
                const bool dupla = aspas && FEm + 1 < FTexto.size() && FTexto[FEm + 1] == u'"';
                if (dupla)
                    valor += FTexto[FEm++];
                else
                    aspas = !aspas;
            } else if (!aspas && (c == u';' || c == u'\n' || c == u'\r')) {
                break;
            } else {
                valor += c;
            }
        }
        return valor.trimmed();
    }

    // True at a semicolon; a line end is passed over.
    bool Separador() {
        if (Fim()) return false;
        const QChar c = FTexto[FEm++];
        if (c == u'\r' && !Fim() && FTexto[FEm] == u'\n') ++FEm;
        return c == u';';
    }

    const UnicodeString FTexto;
    qsizetype FEm = 0;
};

class TFonteCsv : public TFonte {
  public:
    explicit TFonteCsv(const UnicodeString& arquivo) : FArquivo(arquivo) {}

    std::optional<TEmpresa> Buscar(const UnicodeString& cnpj) override {
        TLeitor leitor(Decodificar(ReadWholeFile(FArquivo)));
        const QStringList colunas = leitor.Fim() ? QStringList() : leitor.Proximo();
        TEmpresa modelo;
        const auto nomeia = [&](const QString& coluna) { return CampoDe(modelo, coluna) == &modelo.CNPJ; };
        if (std::none_of(colunas.begin(), colunas.end(), nomeia))
            throw Exception(u"O arquivo '%1' não tem a coluna cnpj."_s.arg(FArquivo));
        while (!leitor.Fim()) {
            const TEmpresa empresa = Empresa(colunas, leitor.Proximo());
            if (GetNumbers(empresa.CNPJ) == cnpj) return empresa;
        }
        return std::nullopt;
    }

  private:
    static TEmpresa Empresa(const QStringList& colunas, const QStringList& valores) {
        TEmpresa empresa;
        for (qsizetype i = 0; i < std::min(colunas.size(), valores.size()); ++i) {
            if (UnicodeString* campo = CampoDe(empresa, colunas[i])) *campo = valores[i];
        }
        return empresa;
    }

    UnicodeString FArquivo;
};

}  // namespace

std::unique_ptr<TFonte> FonteCsv(const UnicodeString& arquivo) {
    return std::make_unique<TFonteCsv>(arquivo);
}
