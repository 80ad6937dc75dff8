#include <cerrno>
#include <QFile>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Files.h"
#include "tools/gridreport/Exporta.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPontosPorPolegada = 72;
constexpr int kResolucao = 720;

void Desenhar(QPdfWriter& writer, const TPaginas& paginas, const TAndamento& andamento) {
    QPainter painter(&writer);
    painter.scale(double(kResolucao) / kPontosPorPolegada, double(kResolucao) / kPontosPorPolegada);
    for (int page = 0; page < paginas.Quantas(); ++page) {
        if (page > 0) writer.newPage();
        paginas.Desenhar(painter, page);
        if (andamento && !andamento(page + 1, paginas.Quantas())) Abort();
    }
}

}  // namespace

void ExportarPdf(const TRelatorio& relatorio, const TPaginas& paginas, const UnicodeString& arquivo,
                 const TAndamento& andamento) {
    TFileDraft rascunho(arquivo);
    QFile file(rascunho.Name());
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) RaiseFileError(arquivo, foWrite, errno ? errno : EACCES);
    QPdfWriter writer(&file);
    writer.setResolution(kResolucao);
    writer.setTitle(relatorio.Nome);
    writer.setPageLayout(
        QPageLayout(QPageSize(paginas.Papel(), QPageSize::Point), QPageLayout::Portrait, {}));
    Desenhar(writer, paginas, andamento);
    errno = 0;
    const bool written = file.flush() && file.error() == QFileDevice::NoError;
    if (!written) RaiseFileError(arquivo, foWrite, errno ? errno : ENOSPC);
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
