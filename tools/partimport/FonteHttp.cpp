#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include "platform/rtl/Exceptions.h"
#include "tools/partimport/Fonte.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kNaoEncontrado = 404;
constexpr qint64 kMaiorResposta = 1 << 20;

class TFonteHttp : public TFonte {
  public:
    TFonteHttp(const UnicodeString& endereco, int segundos) : FEndereco(endereco), FSegundos(segundos) {}

    std::optional<TEmpresa> Buscar(const UnicodeString& cnpj) override {
        QNetworkRequest pedido(QUrl(UnicodeString(FEndereco).replace(u"{cnpj}"_s, cnpj)));
        pedido.setTransferTimeout(FSegundos * 1000);
        QNetworkAccessManager rede;
        const std::unique_ptr<QNetworkReply> resposta(rede.get(pedido));
        QEventLoop espera;
        QObject::connect(resposta.get(), &QNetworkReply::finished, &espera, &QEventLoop::quit);
        espera.exec();
        if (resposta->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == kNaoEncontrado)
            return std::nullopt;
        if (resposta->error() == QNetworkReply::OperationCanceledError)
            throw Exception(
                u"O serviço de busca não respondeu em %1 segundos. Tente novamente."_s.arg(FSegundos));
        if (resposta->error() != QNetworkReply::NoError)
            throw Exception(u"O serviço de busca não está disponível (%1)."_s.arg(resposta->errorString()));
        return Empresa(resposta->read(kMaiorResposta), cnpj);
    }

  private:
    static TEmpresa Empresa(const QByteArray& json, const UnicodeString& cnpj) {
        const QJsonDocument documento = QJsonDocument::fromJson(json);
        if (!documento.isObject())
            throw Exception(u"O serviço de busca deu uma resposta que não se entende."_s);
        TEmpresa empresa;
        const QJsonObject objeto = documento.object();
        for (auto valor = objeto.begin(); valor != objeto.end(); ++valor) {
            if (UnicodeString* campo = CampoDe(empresa, valor.key()))
                *campo = valor.value().toVariant().toString();
        }
        if (empresa.Razao.isEmpty())
            throw Exception(u"O serviço de busca deu uma resposta que não se entende."_s);
        if (empresa.CNPJ.isEmpty()) empresa.CNPJ = cnpj;
        return empresa;
    }

    UnicodeString FEndereco;
    int FSegundos;
};

}  // namespace

std::unique_ptr<TFonte> FonteHttp(const UnicodeString& endereco, int segundos) {
    return std::make_unique<TFonteHttp>(endereco, segundos);
}
