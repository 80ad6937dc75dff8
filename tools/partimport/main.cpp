// PartImport: looks a company up by its CNPJ and leaves its data in Config.ini for the program that has
// started it.
//
//     PartImport -impprt 11222333000181      looks up and ends
//     PartImport -impprt                     asks for the CNPJ in a window first
//
// While it runs it holds the lock VREN_IMPART. Exit code 0 when data was delivered, 1 otherwise.
#include <cstdio>
#include <QApplication>

#include "platform/rtl/Exceptions.h"
#include "platform/system/NamedMutex.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "tools/partimport/Busca.h"
#include "tools/partimport/Janela.h"
#include "utils/funcoes/Espera.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kTentativas = 200;

// The program that waits takes the lock for an instant now and then.
void Segurar(TNamedMutex& mutex) {
    for (int i = 0; i < kTentativas && !mutex.TryLock(); ++i) Wait(5);
}

UnicodeString CnpjDe(const QStringList& argumentos) {
    const qsizetype chave = argumentos.indexOf(u"-impprt"_s);
    return chave < 0 ? UnicodeString() : argumentos.value(chave + 1);
}

bool SemTela() {
    return QGuiApplication::platformName() == u"offscreen";
}

int Buscar(const UnicodeString& cnpj) {
    try {
        BuscarParticipante(cnpj, *CriarFonte(LerAjustes(JoinPath(ProgramFolder(), u"PartImport.ini"))),
                           JoinPath(ProgramFolder(), u"Config.ini"));
        return 0;
    } catch (const Exception& e) {
        fprintf(stderr, "%s\n", e.what());
        if (!SemTela()) Application->MessageBox(e.Message, u"Erro"_s, MB_ICONERROR);
        return 1;
    }
}

int Perguntar() {
    TJanela janela([](const UnicodeString& cnpj) {
        BuscarParticipante(cnpj, *CriarFonte(LerAjustes(JoinPath(ProgramFolder(), u"PartImport.ini"))),
                           JoinPath(ProgramFolder(), u"Config.ini"));
    });
    return janela.exec() == QDialog::Accepted ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ApplyLooks(app);
    TApplication application;
    TNamedMutex mutex(u"VREN_IMPART"_s);
    Segurar(mutex);
    const UnicodeString cnpj = CnpjDe(QApplication::arguments());
    return cnpj.isEmpty() ? Perguntar() : Buscar(cnpj);
}
