#include "bench/Tela.h"

#include <QFile>
#include <QTemporaryDir>
#include "demo/dados/Banco.h"
#include "platform/system/Paths.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QTemporaryDir& Folder() {
    static QTemporaryDir folder;
    return folder;
}

}  // namespace

int LargeRows() {
    const int rows = qEnvironmentVariableIntValue("FICHARIO_BENCH_ROWS");
    return rows > 0 ? rows : 1000000;
}

UnicodeString Database(int rows) {
    const UnicodeString kept = qEnvironmentVariable("FICHARIO_BENCH_DIR");
    const UnicodeString path =
        JoinPath(kept.isEmpty() ? Folder().path() : kept, u"clientes-%1.fdb"_s.arg(rows));
    if (!QFile::exists(path)) CriarBancoDeExemplo(path, rows);
    return path;
}

TBenchProgram::TOffscreen::TOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

TBenchProgram::TBenchProgram(int& argc, char** argv) : FApp(argc, argv) {
    ApplyLooks(FApp);
    SetProgramFolder(Folder().path());
}

TScreen::TScreen(const UnicodeString& database) : Data(new TDM_Comercial(Application)) {
    Data->OpenDatabase(database);
    Main = NewForm<TFrmPrincipal>(Application, Data);
    Application->ProcessMessages();
}

TScreen::~TScreen() {
    Main->Free();
    Data->Free();
}

TFrmClientes* TScreen::Clientes() {
    Main->OpenClientes();
    return dynamic_cast<TFrmClientes*>(Main->OpenForms().back());
}
