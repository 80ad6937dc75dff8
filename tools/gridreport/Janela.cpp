#include "tools/gridreport/Janela.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QScrollArea>
#include <QToolBar>

#include "platform/rtl/Exceptions.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "tools/gridreport/Exporta.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSizeF kA4(595, 842);
constexpr int kBorda = 16;  // around the page, in pixels
constexpr double kMenorEscala = 0.4;
constexpr int kEspera = 500;  // milliseconds without a bar

}  // namespace

QSizeF PapelA4(bool paisagem) {
    return paisagem ? kA4.transposed() : kA4;
}

// The page on the screen, as wide as there is room.
class TFolha : public QWidget {
  public:
    int Pagina = 0;

    void Mostrar(const TPaginas* paginas) {
        FPaginas = paginas;
        Pagina = std::clamp(Pagina, 0, paginas->Quantas() - 1);
        update();
    }
    void Ajustar(int largura) {
        if (!FPaginas) return;
        FEscala = std::max(kMenorEscala, (largura - 2 * kBorda) / FPaginas->Papel().width());
        const QSizeF paper = FPaginas->Papel() * FEscala;
        setFixedSize(int(paper.width()) + 2 * kBorda, int(paper.height()) + 2 * kBorda);
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Cores::FundoJanela);
        if (!FPaginas) return;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(kBorda, kBorda);
        painter.scale(FEscala, FEscala);
        painter.fillRect(QRectF({}, FPaginas->Papel()), Qt::white);
        FPaginas->Desenhar(painter, Pagina);
    }

  private:
    const TPaginas* FPaginas = nullptr;
    double FEscala = 1;
};

bool ComBarra(QWidget* janela, const QString& legenda,
              const std::function<void(const TAndamento&)>& trabalho) {
    QProgressDialog progress(legenda, u"Cancelar"_s, 0, 100, janela);
    progress.setWindowTitle(u"Impressão"_s);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(kEspera);
    try {
        trabalho([&](int64_t done, int64_t total) {
            progress.setValue(int(done * 99 / std::max<int64_t>(1, total)));
            return !progress.wasCanceled();
        });
        return true;
    } catch (const EAbort&) {
        return false;
    } catch (const Exception& e) {
        progress.cancel();
        Application->MessageBox(e.Message, u"Erro"_s, MB_ICONERROR);
        return false;
    }
}

namespace {

// The ending follows the chosen kind of file, so that the dialog asks before it overwrites one.
UnicodeString PerguntarArquivo(QWidget* janela, const UnicodeString& proposta) {
    QFileDialog dialog(janela, u"Salvar"_s, {}, u"PDF (*.pdf);;Planilha (*.xlsx);;CSV (*.csv)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    dialog.selectFile(proposta);
    QObject::connect(&dialog, &QFileDialog::filterSelected, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.section(u'.', -1).chopped(1));
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool PerguntarImpressora(QWidget* janela, QPrinter& impressora, int paginas) {
    QPrintDialog dialog(&impressora, janela);
    dialog.setMinMax(1, paginas);
    return dialog.exec() == QDialog::Accepted;
}

// Tells the page of the room it has.
class TRolagem : public QScrollArea {
  public:
    explicit TRolagem(TFolha* folha) : FFolha(folha) {
        setWidget(folha);
        setAlignment(Qt::AlignHCenter);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, Cores::FundoJanela);
        viewport()->setPalette(colours);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    }

  protected:
    void resizeEvent(QResizeEvent* event) override {
        QScrollArea::resizeEvent(event);
        FFolha->Ajustar(viewport()->width());
    }

  private:
    TFolha* FFolha;
};

}  // namespace

TJanela::TJanela(TRelatorio& relatorio, const TTabela& tabela)
    : FRelatorio(relatorio), FTabela(tabela), FFolha(new TFolha), FRolagem(new TRolagem(FFolha)) {
    OnPerguntarArquivo = [this](const UnicodeString& proposta) { return PerguntarArquivo(this, proposta); };
    OnPerguntarImpressora = [this](QPrinter& impressora, int paginas) {
        return PerguntarImpressora(this, impressora, paginas);
    };
    setWindowTitle(u"Impressão - "_s + relatorio.Nome);
    FRolagem->setAccessibleName(u"Página"_s);
    setCentralWidget(FRolagem);
    CriarBarra();
    resize(900, 700);
    Montar();
}

TJanela::~TJanela() = default;

QAction* TJanela::Acao(QToolBar* barra, const QString& texto, const QKeySequence& atalho,
                       const std::function<void()>& fazer) {
    QAction* action = barra->addAction(texto);
    action->setShortcut(atalho);
    action->setToolTip(texto + u" ("_s + atalho.toString(QKeySequence::NativeText) + u")"_s);
    connect(action, &QAction::triggered, this, fazer);
    return action;
}

void TJanela::CriarBarra() {
    QToolBar* bar = addToolBar(u"Ações"_s);
    bar->setMovable(false);
    Acao(bar, u"Imprimir..."_s, Qt::CTRL | Qt::Key_P, [this] { Imprimir(); });
    Acao(bar, u"Salvar..."_s, Qt::CTRL | Qt::Key_S, [this] { Salvar(); });
    bar->addSeparator();
    FAnterior = Acao(bar, u"Anterior"_s, Qt::Key_PageUp, [this] { IrPara(Pagina() - 1); });
    FProxima = Acao(bar, u"Próxima"_s, Qt::Key_PageDown, [this] { IrPara(Pagina() + 1); });
    Acao(bar, u"Primeira"_s, Qt::Key_Home, [this] { IrPara(0); });
    Acao(bar, u"Última"_s, Qt::Key_End, [this] { IrPara(FPaginas->Quantas() - 1); });
    bar->addSeparator();
    Acao(bar, u"Retrato/Paisagem"_s, Qt::CTRL | Qt::Key_R, [this] { Virar(); });
    bar->addSeparator();
    Acao(bar, u"Fechar"_s, Qt::Key_Escape, [this] { close(); });
    FContagem = new QLabel(bar);
    FContagem->setMargin(8);
    bar->addWidget(FContagem);
}

void TJanela::Montar() {
    FPaginas = std::make_unique<TPaginas>(FRelatorio, FTabela, PapelA4(FRelatorio.Paisagem), Now());
    FFolha->Mostrar(FPaginas.get());
    FFolha->Ajustar(FRolagem->viewport()->width());
    IrPara(FFolha->Pagina);
}

void TJanela::Virar() {
    FRelatorio.Paisagem = !FRelatorio.Paisagem;
    Montar();
}

int TJanela::Pagina() const {
    return FFolha->Pagina;
}

void TJanela::IrPara(int pagina) {
    FFolha->Pagina = std::clamp(pagina, 0, FPaginas->Quantas() - 1);
    FFolha->update();
    FAnterior->setEnabled(FFolha->Pagina > 0);
    FProxima->setEnabled(FFolha->Pagina < FPaginas->Quantas() - 1);
    FContagem->setText(u"Página %1 de %2"_s.arg(FFolha->Pagina + 1).arg(FPaginas->Quantas()));
}

void TJanela::ImprimirEm(QPrinter& impressora, const TPaginas& paginas, const TAndamento& andamento) {
    const int last = impressora.toPage() > 0 ? impressora.toPage() : paginas.Quantas();
    const TFaixa faixa{std::max(1, impressora.fromPage()) - 1, std::min(last, paginas.Quantas())};
    const UnicodeString arquivo = impressora.outputFileName();
    // The toolkit's printer is silent about a full disk.
    if (!arquivo.isEmpty()) return ExportarPdf(FRelatorio, paginas, arquivo, andamento, faixa);
    DesenharPaginas(impressora, paginas, faixa, [&](int64_t done, int64_t total) {
        const bool on = andamento(done, total);
        if (!on) impressora.abort();
        return on;
    });
}

void TJanela::Imprimir() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(FRelatorio.Paisagem ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true);
    printer.setDocName(FRelatorio.Nome);
    if (!OnPerguntarImpressora(printer, FPaginas->Quantas())) return;
    // The user may have chosen another paper than the preview's.
    const TPaginas pages(FRelatorio, FTabela, printer.pageLayout().fullRectPoints().size(), Now());
    ComBarra(this, u"Imprimindo…"_s,
             [&](const TAndamento& andamento) { ImprimirEm(printer, pages, andamento); });
}

void TJanela::Salvar() {
    const UnicodeString file =
        OnPerguntarArquivo(UnicodeString(FRelatorio.Nome).replace(u'/', u'-') + u".pdf"_s);
    if (file.isEmpty()) return;
    ComBarra(this, u"Salvando…"_s,
             [&](const TAndamento& andamento) { Exportar(FRelatorio, *FPaginas, file, andamento); });
}
