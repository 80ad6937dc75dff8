// Opening the customers' screen on a large table beside the same on a small one: the first rows must be
// painted without waiting for the rest, nor for the count. Ratio wanted: at most 1.2.
//
//     bench_browse                          10 000 and 1 000 000 customers
//     FICHARIO_BENCH_ROWS=100000 bench_browse
//     FICHARIO_BENCH_DIR=DIR bench_browse   keeps the databases in DIR for the next run
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QTemporaryDir>

#include "demo/dados/Banco.h"
#include "demo/DmComercial.h"
#include "demo/FrmPrincipal.h"
#include "forms/base/UFrmBase.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSmall = 10000;

int LargeRows() {
    const int rows = qEnvironmentVariableIntValue("FICHARIO_BENCH_ROWS");
    return rows > 0 ? rows : 1000000;
}

struct TScreen {
    TDM_Comercial* Data;
    TFrmPrincipal* Main;

    explicit TScreen(const UnicodeString& database) : Data(new TDM_Comercial(Application)) {
        Data->OpenDatabase(database);
        Main = NewForm<TFrmPrincipal>(Application, Data);
        Application->ProcessMessages();
    }
    ~TScreen() {
        Main->Free();
        Data->Free();
    }
};

QTemporaryDir& Folder() {
    static QTemporaryDir folder;
    return folder;
}

UnicodeString Database(int rows) {
    const UnicodeString kept = qEnvironmentVariable("FICHARIO_BENCH_DIR");
    const UnicodeString path =
        JoinPath(kept.isEmpty() ? Folder().path() : kept, u"clientes-%1.fdb"_s.arg(rows));
    if (!QFile::exists(path)) CriarBancoDeExemplo(path, rows);
    return path;
}

// From the click on the menu to the painted rows.
void OpenClientes(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    screen.Main->OpenClientes();  // the first time in a connection reads the server's own tables
    for (auto _ : state) {
        state.PauseTiming();
        while (!screen.Main->OpenForms().empty()) screen.Main->OpenForms().back()->Free();
        Application->ProcessMessages();
        state.ResumeTiming();
        screen.Main->OpenClientes();
        screen.Main->OpenForms().back()->Widget()->grab();
    }
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ApplyLooks(app);
    SetProgramFolder(Folder().path());
    TApplication application;
    benchmark::RegisterBenchmark("OpenClientes", OpenClientes)
        ->Arg(kSmall)
        ->Arg(LargeRows())
        ->Unit(benchmark::kMillisecond)
        ->Iterations(20)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
    // The two sizes take turns, so that what else the machine does meets both.
    std::vector<char*> arguments(argv, argv + argc);
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    arguments.push_back(interleaved);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
