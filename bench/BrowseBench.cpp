// The customers' screen on a large table: opening, searching, repainting, and a list's incremental locate.
//
//     bench_browse                          10 000 and 1 000 000 customers
//     FICHARIO_BENCH_ROWS=100000 bench_browse
//     FICHARIO_BENCH_DIR=DIR bench_browse   keeps the databases in DIR for the next run
//
// OpenClientes   from the click on the menu to painted rows; wanted: 1 000 000 rows at most 1.2 times 10 000
// Search         from the end of the 200 ms wait to painted rows; `ratio` over the bare query for the first
//                page, allowed 1.5 after 16 ms are taken off
// Repaint        the page at a random place of all rows loaded; `ratio` over a table view on a model that
//                holds its texts in memory, `worst_ms` of all frames (allowed: 16)
// LoadList       all rows into a list's grid, and a picture of it; `ours` over the bare fetch of the same
//                columns, the median of the rounds (allowed: 1.25)
// LocateInList   one key typed in list mode that finds nothing, over all rows loaded (allowed: 8 ms)
#include <benchmark/benchmark.h>
#include <algorithm>
#include <QScrollBar>
#include <QTableView>
#include <random>

#include "bench/Comparison.h"
#include "bench/ModeloEmMemoria.h"
#include "bench/RawClient.h"
#include "bench/Tela.h"
#include "demo/FrmClientes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kFirstPage = 50;
constexpr double kFrame = 0.016;

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

void Search(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TFrmClientes* clientes = screen.Clientes();
    clientes->EdtPesquisa->SetFocus();
    const UnicodeString texts[] = {u"m"_s, u"ma"_s, u"jo"_s, u"ant"_s};
    std::vector<double> ratios;
    size_t turn = 0;
    for (auto _ : state) {
        clientes->EdtPesquisa->SetText(texts[turn++ % std::size(texts)]);
        const double spent = SecondsOf([&] {
            clientes->FinishSearch();
            clientes->Widget()->grab();
        });
        state.SetIterationTime(spent);
        auto* query = dynamic_cast<TFDQuery*>(clientes->MainDS->DataSet());
        const UnicodeString sql = query->SQL()->Text();
        const double raw =
            SecondsOf([&] { FetchRaw(*screen.Data->Connection()->RequireAttachment(), sql, kFirstPage); });
        ratios.push_back(std::max(0.0, spent - kFrame) / raw);
    }
    state.counters["ratio"] = Median(ratios);
}

void Repaint(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TFrmClientes* clientes = screen.Clientes();
    clientes->MainDS->DataSet()->Last();
    TDBGrid* grid = clientes->DBGrd;
    Application->ProcessMessages();

    TModeloEmMemoria model(kSmall, grid->Columns().Count());
    QTableView peer;
    peer.setModel(&model);
    peer.resize(grid->size());
    peer.grab();

    std::mt19937 random(7);
    const auto scroll = [&](QAbstractScrollArea& area) {
        area.verticalScrollBar()->setValue(int(random() % unsigned(area.verticalScrollBar()->maximum())));
    };
    std::vector<double> ratios;
    double worst = 0;
    for (auto _ : state) {
        scroll(*grid);
        scroll(peer);
        const double spent = SecondsOf([&] { grid->viewport()->grab(); });
        const double held = SecondsOf([&] { peer.viewport()->grab(); });
        state.SetIterationTime(spent);
        ratios.push_back(spent / held);
        worst = std::max(worst, spent);
    }
    state.counters["ratio"] = Median(ratios);
    state.counters["worst_ms"] = worst * 1e3;
}

class TListaSimples : public TFrmViz_Master {
  public:
    TListaSimples(TComponent* owner, TModuleInstance* module, TDM_Comercial* data)
        : TFrmViz_Master(owner, module, nullptr, vtList, ktFieldProviderFlag), FData(data) {}

  protected:
    void CreateControls() override {
        TFrmViz_Master::CreateControls();
        TFDQuery* query =
            FData->NewQuery(this, u"SELECT CD_CLI, NM_CLI, CIDADE, DT_CAD, VL_LIMITE FROM CLIENTE"_s);
        query->SetTag(1);
        MainDS->SetDataSet(query);
        DBGrd->AddColumn(u"CD_CLI"_s, u"Código"_s, 80);
        DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 300);
    }

  private:
    TDM_Comercial* FData;
};

void LoadList(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TModuleInstance module(screen.Main, {u"LISTA"_s, u"Lista"_s, {}});
    auto* list = NewForm<TListaSimples>(Application, &module, screen.Data);
    auto* query = dynamic_cast<TFDQuery*>(list->MainDS->DataSet());
    const UnicodeString sql = query->SQL()->Text();
    const auto load = [&] {
        query->Close();
        query->Open();
        query->Last();
        list->Widget()->grab();
    };
    Compare(state, [&] { FetchRaw(*screen.Data->Connection()->RequireAttachment(), sql); }, {{"ours", load}});
    list->Free();
}

void LocateInList(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TModuleInstance module(screen.Main, {u"LISTA"_s, u"Lista"_s, {}});
    auto* list = NewForm<TListaSimples>(Application, &module, screen.Data);
    list->MainDS->DataSet()->Last();
    for (auto _ : state) list->Locate(u"maria xyzq"_s);
    list->Free();
}

void Register(const char* name, void (*bench)(benchmark::State&), int iterations, bool manual) {
    auto* made = benchmark::RegisterBenchmark(name, bench)
                     ->Arg(kSmall)
                     ->Arg(LargeRows())
                     ->Unit(benchmark::kMillisecond)
                     ->Iterations(iterations);
    if (manual) made->UseManualTime();
}

}  // namespace

int main(int argc, char** argv) {
    const TBenchProgram program(argc, argv);
    // The two sizes take turns, so that what else the machine does meets both.
    benchmark::RegisterBenchmark("OpenClientes", OpenClientes)
        ->Arg(kSmall)
        ->Arg(LargeRows())
        ->Unit(benchmark::kMillisecond)
        ->Iterations(20)
        ->Repetitions(5)
        ->ReportAggregatesOnly(true);
    Register("Search", Search, 40, true);
    Register("Repaint", Repaint, 200, true);
    Register("LoadList", LoadList, 15, true);
    Register("LocateInList", LocateInList, 20, false);
    std::vector<char*> arguments(argv, argv + argc);
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    arguments.push_back(interleaved);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
