#include "demo/FrmPreviaRecibo.h"

#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

#include "demo/ReciboPapel.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"
#include "platform/ui/Palette.h"
#include "platform/ui/StdCtrls.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kPaperMargin = 12;
constexpr int kWidth = 700;
constexpr int kButtonWidth = 136;
constexpr int kButtonGap = 8;
constexpr int kPaperWidth = kWidth - 2 * kMargin;
constexpr int kPaperHeight = int((kPaperWidth - 2 * kPaperMargin) / kProporcaoDoRecibo) + 2 * kPaperMargin;
constexpr int kButtonsTop = kMargin + kPaperHeight + kMargin;

// A white sheet with the receipt.
class TPapel : public TWidget<QWidget> {
  public:
    TPapel(TComponent* owner, const TRecibo& recibo) : TWidget(owner), FRecibo(recibo) {
        SetAccessibleName(TextoDoRecibo(recibo) + u' ' + CidadeEData(recibo));
    }

  protected:
    ~TPapel() override = default;

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Cores::Trabalho);
        painter.setPen(Cores::Fio);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        const int m = kPaperMargin;
        DesenhaRecibo(painter, QRectF(rect()).adjusted(m, m, -m, -m), FRecibo);
    }

  private:
    const TRecibo& FRecibo;
};

UnicodeString AskFile(QWidget* parent, const UnicodeString& proposal) {
    return QFileDialog::getSaveFileName(parent, u"Salvar recibo em PDF"_s, proposal,
                                        u"Documentos PDF (*.pdf)"_s);
}

bool AskPrinter(QWidget* parent, QPrinter& printer) {
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(u"Imprimir recibo"_s);
    return dialog.exec() == QDialog::Accepted;
}

UnicodeString WithSuffix(const UnicodeString& path) {
    return path.endsWith(u".pdf"_s, Qt::CaseInsensitive) ? path : path + u".pdf"_s;
}

}  // namespace

TFrmPreviaRecibo::TFrmPreviaRecibo(TComponent* AOwner, TModuleInstance* AModule, const TRecibo& ARecibo)
    : TFrmBase(AOwner, AModule, AModule->Info(), false, false), FRecibo(ARecibo) {
    SetFormStyle(fsNormal);
    SetVisible(false);
    SetBorderStyle(bsDialog);
    SetBorderIcons(biSystemMenu);
    OnAskFile = [this](const UnicodeString& proposal) { return AskFile(Widget(), proposal); };
    OnAskPrinter = [this](QPrinter& printer) { return AskPrinter(Widget(), printer); };
}

void TFrmPreviaRecibo::CreateControls() {
    TFrmBase::CreateControls();
    SetCaption(u"Recibo: visualizar impressão"_s);
    SetClientWidth(kWidth);
    SetClientHeight(kButtonsTop + kEditHeight + kMargin);
    auto* paper = new TPapel(this, FRecibo);
    paper->SetParent(this);
    paper->SetBounds(kMargin, kMargin, kPaperWidth, kPaperHeight);
    const int close = kWidth - kMargin - kButtonWidth;
    AddButton(u"BtnImprimir"_s, u"&Imprimir..."_s, close - 2 * (kButtonWidth + kButtonGap), [this] {
        Print();
    })->SetDefault(true);
    AddButton(u"BtnSalvar"_s, u"&Salvar em PDF..."_s, close - kButtonWidth - kButtonGap,
              [this] { SavePdf(); });
    AddButton(u"BtnFechar"_s, u"&Fechar"_s, close, [this] { Close(); });
}

TButton* TFrmPreviaRecibo::AddButton(const UnicodeString& name, const UnicodeString& caption, int left,
                                     const std::function<void()>& click) {
    auto* button = NewControl<TButton>(this, this, name, QRect(left, kButtonsTop, kButtonWidth, kEditHeight));
    button->SetCaption(caption);
    button->OnClick = [click](TComponent*) { click(); };
    return button;
}

void TFrmPreviaRecibo::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(u"Recibo"_s);
    if (!OnAskPrinter(printer)) return;
    if (!ImprimeRecibo(printer, FRecibo))
        throw Exception(u"Não foi possível imprimir. Verifique a impressora e tente de novo."_s);
    FImpresso = true;
}

void TFrmPreviaRecibo::SavePdf() {
    const UnicodeString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const UnicodeString path = OnAskFile(JoinPath(folder, u"Recibo.pdf"));
    if (path.isEmpty()) return;
    WriteWholeFile(WithSuffix(path), ReciboEmPdf(FRecibo));
    FImpresso = true;
}

void TFrmPreviaRecibo::FormClose(TComponent* Sender, TCloseAction& Action) {
    TFrmBase::FormClose(Sender, Action);
    if (FImpresso) SetModalResult(kImpresso);
}
