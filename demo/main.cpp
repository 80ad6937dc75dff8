// Comercial: the sample host of Fichário. Where Config.ini has a section DATABASE it connects to that server,
// and lets the user repair the settings while that fails; else the embedded engine opens its database in the
// user's data folder, which is created on first use.
//
//     comercial                      opens the main window
//     comercial --banco FILE         another database file, by the embedded engine
//     comercial --usuario NAME       enters as that user of the sample (Gerente, Vendedor, Consulta)
//                                    without asking
//     comercial --turne DIR          writes a picture of every screen to DIR and ends (also --tour);
//                                    --tamanho 800x600 sizes its main window, 1024x768 at first
#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>

#include "db/UDBUtils.h"
#include "demo/dados/Banco.h"
#include "demo/DmComercial.h"
#include "demo/FrmPrincipal.h"
#include "demo/Turne.h"
#include "platform/rtl/Exceptions.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "platform/ui/Resources.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct TOptions {
    UnicodeString Database;
    UnicodeString TourFolder;
    QSize TourSize;
    UnicodeString User;
};

TOptions ReadOptions(const QApplication& app) {
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({u"banco"_s, u"Arquivo do banco de dados."_s, u"arquivo"_s});
    parser.addOption({u"usuario"_s, u"Entra como este usuário do exemplo, sem perguntar."_s, u"nome"_s});
    parser.addOption(
        {{u"turne"_s, u"tour"_s}, u"Grava uma imagem de cada tela na pasta e termina."_s, u"pasta"_s});
    parser.addOption({u"tamanho"_s, u"Tamanho da janela principal nas imagens."_s, u"LxA"_s, u"1024x768"_s});
    parser.process(app);
    const QStringList size = parser.value(u"tamanho"_s).split(u'x');
    return {parser.value(u"banco"_s), parser.value(u"turne"_s),
            QSize(size.value(0).toInt(), size.value(1).toInt()), parser.value(u"usuario"_s)};
}

void PrepareDatabase(const UnicodeString& path) {
    if (BancoExiste(path)) return;
    fprintf(stdout, "Criando o banco de dados de exemplo em %s\n", qPrintable(path));
    CriarBancoDeExemplo(path, kClientesDeExemplo, [](int done, int total) {
        fprintf(stdout, "\r  %d de %d clientes", done, total);
        fflush(stdout);
    });
    fprintf(stdout, "\n");
}

int RunHost(const TOptions& options) {
    auto* data = new TDM_Comercial(Application);
    const bool configured = options.Database.isEmpty() && HasConnection();
    if (!configured) {
        const UnicodeString path = options.Database.isEmpty() ? CaminhoDoBanco() : options.Database;
        PrepareDatabase(path);
        data->OpenDatabase(path);
    }
    auto* main = NewForm<TFrmPrincipal>(Application, data);
    main->SetIcon(LoadIconResource(u":/fichario"_s, u"FICHARIO"_s));
    if (configured && !main->Conecta()) return 1;
    CompletarBanco(*data->Connection());
    if (!options.TourFolder.isEmpty()) return WriteTour(*main, options.TourFolder, options.TourSize);
    if (!(options.User.isEmpty() ? main->Identifica() : main->Assume(options.User))) return 0;
    return Application->Run();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"Comercial"_s);
    ApplyLooks(app);
    const TOptions options = ReadOptions(app);
    const QTemporaryDir state;  // the tour's pictures do not depend on what the user's screens remember
    if (!options.TourFolder.isEmpty()) {
        SetProgramFolder(state.path());
        qputenv("XDG_CONFIG_HOME", state.path().toLocal8Bit());
    }
    TApplication application;
    try {
        return RunHost(options);
    } catch (const Exception& e) {
        fprintf(stderr, "%s\n", e.what());
        if (options.TourFolder.isEmpty()) Application->MessageBox(e.Message, u"Erro"_s, MB_ICONERROR);
        return 1;
    }
}
