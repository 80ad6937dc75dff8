// What a dataset costs over the bare fetch of the same rows, both in this run.
//
//     bench_data                              100 000 rows
//     FICHARIO_BENCH_ROWS=1000000 bench_data  the full size
//
// Counters: ratio is the time over that of the raw fetch of the same kind, bytes_row the memory that the
// loaded rows hold. Allowed: all rows at most 1.5 times raw, 120 bytes a row.
#include <benchmark/benchmark.h>
#include <algorithm>
#include <chrono>
#include <QTemporaryDir>
#include <vector>
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RawFetch.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kSelect = u"SELECT CD, NM, CPF, EMAIL, UF, SALDO, DT_NASC, CRIADO, ATIVO FROM CLIENTE"_s;
constexpr int kFirstPage = 50;

int Rows() {
    static const int rows = std::max(1, qEnvironmentVariableIntValue("FICHARIO_BENCH_ROWS"));
    return rows > 1 ? rows : 100'000;
}

const UnicodeString kTable =
    u"CREATE TABLE CLIENTE (CD INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(60), CPF VARCHAR(14), EMAIL "
    u"VARCHAR(40), UF CHAR(2), "
    u"SALDO NUMERIC(15,2), DT_NASC DATE, CRIADO TIMESTAMP, ATIVO CHAR(1))"_s;

const UnicodeString kFill =
    u"EXECUTE BLOCK (N INTEGER = :N) AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= N) DO BEGIN INSERT INTO "
    u"CLIENTE VALUES (:I, "
    u"DECODE(MOD(:I, 4), 0, 'João da Conceição ', 1, 'MARIA APARECIDA ', 2, 'Antônio ', 'Inês Gonçalves de "
    u"') || "
    u"DECODE(MOD(:I, 3), 0, 'Souza', 1, 'Araújo Filho', 'Magalhães') || ' ' || :I, LPAD(:I, 11, '0'), "
    u"'cliente' || :I || '@empresa.com.br', DECODE(MOD(:I, 3), 0, 'SP', 1, 'PR', 'MG'), :I * 1.37, DATE "
    u"'1950-01-01' + MOD(:I, "
    u"20000), TIMESTAMP '2020-01-01 08:00:00' + MOD(:I, 1000) * 0.37, IIF(MOD(:I, 5) = 0, 'N', 'S')); I = I + 1; END END"_s;

// The database of the run.
TFDConnection* Connection() {
    static QTemporaryDir folder;
    static TFDConnection* const connection = [] {
        auto* made = new TFDConnection(nullptr);
        made->Params()->SetText(
            u"Protocol=Local\nUser_Name=SYSDBA\nPassword=x\nForcedWrites=False\nPageSize=16384"_s);
        made->Params()->SetValue(u"Database"_s, folder.filePath(u"bench.fdb"_s));
        made->CreateDatabase();
        made->ExecSQL(kTable);
        made->ExecSQL(kFill, {Rows()});
        return made;
    }();
    return connection;
}

TFDQuery* NewQuery() {
    auto* query = new TFDQuery(nullptr);
    query->SetConnection(Connection());
    query->SQL()->SetText(kSelect);
    return query;
}

template <class Work>
double SecondsOf(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Runs `raw` and `ours` by turns, so that a noisy neighbour meets both.
template <class Raw, class Ours>
void Compare(benchmark::State& state, Raw raw, Ours ours) {
    std::vector<double> ratios;
    raw();
    ours();
    for (auto unused : state) {
        static_cast<void>(unused);
        const double limit = SecondsOf(raw);
        const double spent = SecondsOf(ours);
        state.SetIterationTime(spent);
        ratios.push_back(spent / limit);
    }
    std::sort(ratios.begin(), ratios.end());
    state.counters["ratio"] = ratios[ratios.size() / 2];
}

void AllRows(benchmark::State& state) {
    size_t bytes = 0;
    Compare(
        state, [] { fichario::FetchRaw(*Connection()->RequireAttachment(), kSelect); },
        [&] {
            TFDQuery* query = NewQuery();
            query->Open();
            query->Last();
            bytes = query->MemoryUsed();
            query->Free();
        });
    state.counters["bytes_row"] = static_cast<double>(bytes) / Rows();
}

void FirstPage(benchmark::State& state) {
    TFDQuery* query = NewQuery();
    Compare(
        state, [] { fichario::FetchRaw(*Connection()->RequireAttachment(), kSelect, kFirstPage); },
        [&] {
            query->Open();
            query->Close();
        });
    query->Free();
}

// Every field of every row as a value, over the raw fetch.
void EveryValue(benchmark::State& state) {
    Compare(
        state, [] { fichario::FetchRaw(*Connection()->RequireAttachment(), kSelect); },
        [] {
            TFDQuery* query = NewQuery();
            for (query->Open(); !query->Eof(); query->Next()) {
                for (const TField* field : query->Fields()) benchmark::DoNotOptimize(field->Value());
            }
            query->Free();
        });
}

// A search that finds nothing, over all loaded rows.
void LocateNothing(benchmark::State& state) {
    TFDQuery* query = NewQuery();
    query->Open();
    query->Last();
    for (auto unused : state) {
        static_cast<void>(unused);
        benchmark::DoNotOptimize(query->Locate(u"NM"_s, u"maria xyzq"_s, loCaseInsensitive | loPartialKey));
    }
    state.counters["ns_row"] = benchmark::Counter(
        Rows() * 1e-9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    query->Free();
}

BENCHMARK(AllRows)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(FirstPage)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(EveryValue)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(LocateNothing)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
