// The registration form on a large table, and a list on paper.
//
//     bench_masters                          10 000 and 1 000 000 customers; 100 000 rows on paper
//     FICHARIO_BENCH_ROWS=100000 bench_masters
//     FICHARIO_BENCH_DIR=DIR bench_masters   keeps the databases in DIR for the next run
//
// raw_ms is the limit, ours a multiple of it.
//
// OpenFicha   the registration form of one customer to its first picture (allowed: 150 ms); raw: the bare
//             query for the record, and a window with as many edits that hold its texts
// Confirmar   from the click on Confirmar to the picture of the grid on the changed record; raw: the bare
//             update, its commit and the first page of the list. statements counts those after the post
//             (allowed: 3)
// PrintPdf    100 000 rows of customers to PDF by the printing program (allowed: 20 s, and 300 MB that it
//             takes at most); raw: as many texts drawn into a PDF, without measuring any
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <QFormLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>

#include "bench/Comparison.h"
#include "bench/RawClient.h"
#include "bench/Tela.h"
#include "forms/masters/GridPrint.h"
#include "platform/data/firebird/ClientCall.h"
#include "platform/rtl/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPage = 50;
constexpr int kOnPaper = 100000;

fichario::Attachment& Raw(const TScreen& screen) {
    return *screen.Data->Connection()->RequireAttachment();
}

// ---- opening ----

void ShowHeld(int edits, const QSize& size) {
    QWidget window;
    auto* layout = new QFormLayout(&window);
    for (int i = 0; i < edits; ++i) {
        layout->addRow(u"Campo %1"_s.arg(i), new QLineEdit(u"Maria Aparecida da Silva"_s));
    }
    window.resize(size);
    window.show();
    window.grab();
}

void OpenFicha(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TFrmClientes* clientes = screen.Clientes();
    const auto open = [&] {
        clientes->CreateCad(2);
        clientes->ChildForm()->Widget()->grab();
    };
    open();
    const QWidget* window = clientes->ChildForm()->Widget();
    const int edits = int(window->findChildren<QLineEdit*>().size());
    const QSize size = window->size();
    const auto close = [&] {
        if (clientes->ChildForm()) clientes->ChildForm()->Close();
        Application->ProcessMessages();
    };
    const UnicodeString record = u"SELECT * FROM CLIENTE WHERE CD_CLI = 1"_s;
    double limit = 0, ours = 0;
    std::vector<double> limits, ratios;
    for (auto unused : state) {
        static_cast<void>(unused);
        close();
        limit = SecondsOf([&] {
            FetchRaw(Raw(screen), record);
            ShowHeld(edits, size);
        });
        ours = SecondsOf(open);
        state.SetIterationTime(ours);
        limits.push_back(limit);
        ratios.push_back(ours / limit);
    }
    close();
    state.counters["raw_ms"] = Median(limits) * 1e3;
    state.counters["ours"] = Median(ratios);
    state.counters["edits"] = edits;
    state.counters["allowed_ms"] = 150;
}

// ---- confirming ----

// Counts the statements executed while it lives; the post itself is a write and not one of them.
class TStatements {
  public:
    TStatements() {
        fichario::SetClientCallHook(
            [this](fichario::CallKind kind) { FCount += kind == fichario::CallKind::Execute; });
    }
    ~TStatements() { fichario::SetClientCallHook(nullptr); }
    TStatements(const TStatements&) = delete;
    TStatements& operator=(const TStatements&) = delete;
    int Count() const { return FCount; }

  private:
    int FCount = 0;
};

void Confirmar(benchmark::State& state) {
    TScreen screen(Database(int(state.range(0))));
    TFrmClientes* clientes = screen.Clientes();
    TDataSet* list = clientes->MainDS->DataSet();
    const int code = list->FieldByName(u"CD_CLI"_s)->AsInteger();
    const UnicodeString sql = dynamic_cast<TFDQuery*>(list)->SQL()->Text();
    const auto update = [&](int turn) {
        screen.Data->Connection()->ExecSQL(
            u"UPDATE CLIENTE SET VL_LIMITE = %1 WHERE CD_CLI = %2"_s.arg(turn).arg(code));
        FetchRaw(Raw(screen), sql, kPage);
    };
    int turn = 0, statements = 0;
    std::vector<double> limits, ratios;
    for (auto unused : state) {
        static_cast<void>(unused);
        const double limit = SecondsOf([&] { update(++turn); });
        list->Refresh();
        clientes->CreateCad(2);
        auto* ficha = dynamic_cast<TFrmCad_Master*>(clientes->ChildForm());
        ficha->MainDS->DataSet()->FieldByName(u"VL_LIMITE"_s)->SetAsInteger(++turn);
        const double ours = SecondsOf([&] {
            const TStatements counted;
            ficha->BtnConfirmar->Click();
            clientes->Widget()->grab();
            statements = std::max(statements, counted.Count());
        });
        if (list->FieldByName(u"VL_LIMITE"_s)->AsInteger() != turn) state.SkipWithError("not on the record");
        state.SetIterationTime(ours);
        limits.push_back(limit);
        ratios.push_back(ours / limit);
        Application->ProcessMessages();
    }
    state.counters["raw_ms"] = Median(limits) * 1e3;
    state.counters["ours"] = Median(ratios);
    state.counters["statements"] = statements;
    state.counters["allowed"] = 3;
}

// ---- paper ----

// As many texts as a report has cells, in rows of a page.
void DrawBare(const UnicodeString& file, int rows, int columns) {
    constexpr int kRowsOnPage = 60;
    QPdfWriter writer(file);
    QPainter painter(&writer);
    const int height = writer.height() / (kRowsOnPage + 1), width = writer.width() / columns;
    for (int row = 0; row < rows; ++row) {
        if (row > 0 && row % kRowsOnPage == 0) writer.newPage();
        for (int column = 0; column < columns; ++column)
            painter.drawText(column * width, (row % kRowsOnPage + 1) * height, u"Maria %1"_s.arg(row));
    }
}

void PrintPdf(benchmark::State& state) {
    TScreen screen(Database(kOnPaper));
    TFrmClientes* clientes = screen.Clientes();
    const QTemporaryDir folder;
    clientes->MainDS->DataSet()->SaveToFile(folder.filePath(kPrintRows.toString()));
    WritePrintDefinition(*clientes, false, folder.filePath(kPrintDefinition.toString()));
    const int columns = clientes->DBGrd->Columns().Count();
    const auto print = [&] {
        const int code =
            QProcess::execute(QStringLiteral(GRIDREPORT),
                              {u"--pasta"_s, folder.path(), u"--salvar"_s, folder.filePath(u"r.pdf"_s)});
        if (code != 0) state.SkipWithError("not printed");
    };
    const auto bare = [&] { DrawBare(folder.filePath(u"b.pdf"_s), kOnPaper, columns); };
    Compare(state, bare, {{"ours", print}});
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    state.counters["mb"] = double(used.ru_maxrss) / 1024;
    state.counters["allowed_mb"] = 300;
    state.counters["allowed_ms"] = 20000;
}

benchmark::internal::Benchmark* Register(const char* name, void (*bench)(benchmark::State&), int rounds) {
    return benchmark::RegisterBenchmark(name, bench)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(rounds)
        ->UseManualTime();
}

}  // namespace

int main(int argc, char** argv) {
    const TBenchProgram program(argc, argv);
    Register("OpenFicha", OpenFicha, 40)->Arg(kSmall)->Arg(LargeRows());
    Register("Confirmar", Confirmar, 40)->Arg(kSmall)->Arg(LargeRows());
    Register("PrintPdf", PrintPdf, 3);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
