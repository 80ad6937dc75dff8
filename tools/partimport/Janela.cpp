#include "tools/partimport/Janela.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/rtl/Exceptions.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLargura = 380;
constexpr int kMaisLongo = 18;  // 99.999.999/9999-99

}  // namespace

TJanela::TJanela(std::function<void(const UnicodeString&)> buscar)
    : FBuscar(std::move(buscar)), FNumero(new QLineEdit), FAviso(new QLabel), FBotao(nullptr) {
    setWindowTitle(u"Buscar empresa"_s);
    setMinimumWidth(kLargura);
    auto* caption = new QLabel(u"&CNPJ da empresa"_s);
    caption->setBuddy(FNumero);
    FNumero->setMaxLength(kMaisLongo);
    FNumero->setAccessibleName(u"CNPJ da empresa"_s);
    FNumero->setPlaceholderText(u"99.999.999/9999-99"_s);
    FAviso->setWordWrap(true);
    FAviso->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* buttons = new QDialogButtonBox;
    FBotao = buttons->addButton(u"&Buscar"_s, QDialogButtonBox::AcceptRole);
    buttons->addButton(u"Cance&lar"_s, QDialogButtonBox::RejectRole);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(caption);
    layout->addWidget(FNumero);
    layout->addWidget(FAviso);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Buscar(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void TJanela::Buscar() {
    FAviso->setStyleSheet({});
    FAviso->setText(u"Buscando…"_s);
    FBotao->setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    UnicodeString fault;
    try {
        FBuscar(FNumero->text());
    } catch (const Exception& e) {
        fault = e.Message;
    }
    QApplication::restoreOverrideCursor();
    FBotao->setEnabled(true);
    if (fault.isEmpty()) return accept();
    FAviso->setStyleSheet(u"color: %1"_s.arg(Cores::Erro.name()));
    FAviso->setText(fault);
    FNumero->setFocus();
    FNumero->selectAll();
}
