// The preview window: the report page by page, and from there to the printer or into a file.
//
//     TJanela janela(report, table);
//     janela.show();
//
// Page Up and Page Down turn the pages, Ctrl+P prints, Ctrl+S saves, Escape closes.
#pragma once

#include <functional>
#include <memory>
#include <QMainWindow>

#include "tools/gridreport/Pagina.h"

class QAction;
class QLabel;
class QPrinter;
class QScrollArea;
class TFolha;

class TJanela : public QMainWindow {
  public:
    // Both must outlive the window.
    TJanela(TRelatorio& relatorio, const TTabela& tabela);
    ~TJanela() override;

    int Pagina() const;
    void IrPara(int pagina);

    void Imprimir();
    void Salvar();

    // Ask the user: for a file's name, given a proposal, empty when the user gives up; and for a printer and
    // the pages. The toolkit's dialogs at first.
    std::function<UnicodeString(const UnicodeString& proposta)> OnPerguntarArquivo;
    std::function<bool(QPrinter& impressora, int paginas)> OnPerguntarImpressora;

  private:
    void CriarBarra();
    QAction* Acao(class QToolBar* barra, const QString& texto, const QKeySequence& atalho,
                  const std::function<void()>& fazer);
    void Montar();
    void Virar();
    void ImprimirEm(QPrinter& impressora, const TPaginas& paginas, const TAndamento& andamento);

    TRelatorio& FRelatorio;
    const TTabela& FTabela;
    std::unique_ptr<TPaginas> FPaginas;
    TFolha* FFolha;
    QScrollArea* FRolagem;
    QLabel* FContagem = nullptr;
    QAction* FAnterior = nullptr;
    QAction* FProxima = nullptr;
};

// Runs long work with a bar that can stop it, and shows what went wrong. True when it was done to its end.
bool ComBarra(QWidget* janela, const QString& legenda,
              const std::function<void(const TAndamento&)>& trabalho);

// The paper's size in points, upright or on its side: A4.
QSizeF PapelA4(bool paisagem);
