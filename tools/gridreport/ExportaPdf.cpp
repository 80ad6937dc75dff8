#include <cerrno>
#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Files.h"
#include "tools/gridreport/Exporta.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kResolucao = 720;  // a tenth of a point

void Conferir(const QFile& file, const UnicodeString& arquivo) {
    if (file.error() != QFileDevice::NoError) RaiseFileError(arquivo, foWrite, errno ? errno : ENOSPC);
}

}  // namespace

void ExportarPdf(const TRelatorio& relatorio, const TPaginas& paginas, const UnicodeString& arquivo,
                 const TAndamento& andamento, const std::optional<TFaixa>& faixa) {
    TFileDraft rascunho(arquivo);
    QFile file(rascunho.Name());
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) RaiseFileError(arquivo, foWrite, errno ? errno : EACCES);
    QPdfWriter writer(&file);
    writer.setResolution(kResolucao);
    writer.setTitle(relatorio.Nome);
    writer.setPageLayout(
        QPageLayout(QPageSize(paginas.Papel(), QPageSize::Point), QPageLayout::Portrait, {}));
    DesenharPaginas(writer, paginas, faixa.value_or(TFaixa{0, paginas.Quantas()}),
                    [&](int64_t done, int64_t total) {
                        Conferir(file, arquivo);
                        errno = 0;
                        return !andamento || andamento(done, total);
                    });
    errno = 0;
    file.flush();
    Conferir(file, arquivo);
    file.close();
    rascunho.Commit();
}

void Exportar(const TRelatorio& relatorio, const TPaginas& paginas, const UnicodeString& arquivo,
              const TAndamento& andamento) {
    const UnicodeString ending = QFileInfo(arquivo).suffix().toLower();
    if (ending == u"pdf") return ExportarPdf(relatorio, paginas, arquivo, andamento);
    if (ending == u"csv") return ExportarCsv(relatorio, arquivo, andamento);
    if (ending == u"xlsx") return ExportarXlsx(relatorio, arquivo, andamento);
    throw Exception(u"O arquivo '%1' deve terminar em .pdf, .csv ou .xlsx."_s.arg(arquivo));
}
