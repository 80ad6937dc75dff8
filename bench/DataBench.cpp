// What the data layer costs beside the bare client library, and beside Qt's own Firebird driver where that is
// installed, all in this run and by turns.
//
//     bench_data                                       10 000, 100 000 and 1 000 000 rows, embedded engine
//     FICHARIO_BENCH_ROWS=100000 bench_data            one size
//     FICHARIO_TEST_SERVER=DIR bench_data              over TCP as well (tests/servidor/servidor start DIR)
//     bench_data --benchmark_filter=EveryValue/embedded
//
// Columns: raw_ms the limit, ours and peer (the driver) as multiples of it, allowed what ours may be.
//
// AllRows: all rows into a dataset with a listening link; raw: fetched into one buffer. row_bytes is the
// memory of a loaded row (allowed: 100).
//
// EveryValue: and every field read as a value of its type; raw: the same decoded by hand; fetch: the fetch
// alone. local_times counts conversions to local time (allowed: none for each value).
//
// FirstPage: open and first page; raw: prepare, execute and 50 rows; again: the same bare without preparing,
// as a program does that keeps its statement. sends counts what goes to the server when a statement is first
// used on a known table (allowed: 3).
//
// RecordCount: the exact count of an open dataset; raw: SELECT COUNT(*); fetch: reading all rows instead.
//
// LocateNothing: a search over all loaded rows that finds nothing, blind to case. ms_million is the time for
// 1 000 000 rows (allowed: 8).
//
// Post: new records in one transaction; raw: the same INSERT, prepared and executed.
#include "bench/ClienteTable.h"
#include "bench/Comparison.h"
#include "bench/QtPeer.h"
#include "bench/RawClient.h"
#include "bench/SystemCalls.h"
#include "platform/data/DataLink.h"
#include "platform/data/DataSource.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kFirstPage = 50;
constexpr int kPosts = 5000;

struct Where {
    Place At;
    int Rows;

    fichario::Attachment& Raw() const { return *ClientesOf(At, Rows)->RequireAttachment(); }
    TFDQuery* Query(const UnicodeString& sql = kSelectClientes) const {
        auto* query = new TFDQuery(nullptr);
        query->SetConnection(ClientesOf(At, Rows));
        query->SQL()->SetText(sql);
        return query;
    }
};

Contender Ours(const Work& work) {
    return {"ours", work};
}

// Takes no part where the driver is missing.
Contender Peer(const Work& work) {
    return {"peer", HasQtPeer() ? work : Work()};
}

// ---- reading ----

// What a grid hears.
class TListener : public TDataLink {
  public:
    void RowsArrived() override { FRows = DataSet()->RowCount(); }
    int Rows() const { return FRows; }

  private:
    int FRows = 0;
};

void AllRows(benchmark::State& state, Where where) {
    size_t bytes = 0;
    auto* source = new TDataSource(nullptr);
    TListener listener;
    listener.SetDataSource(source);
    const auto ours = [&] {
        TFDQuery* query = where.Query();
        source->SetDataSet(query);
        query->Open();
        query->Last();
        bytes = query->MemoryUsed();
        if (listener.Rows() != where.Rows) state.SkipWithError("rows are missing");
        query->Free();
    };
    Compare(state, [&] { FetchRaw(where.Raw(), kSelectClientes); },
            {Ours(ours), Peer([&] { QtAllRows(where.At, where.Rows); })});
    source->Free();
    state.counters["allowed"] = where.At == Place::Embedded ? 1.25 : 1.15;
    state.counters["row_bytes"] = static_cast<double>(bytes) / where.Rows;
}

void Use(const TField& field) {
    switch (field.DataType()) {
        case ftInteger: return benchmark::DoNotOptimize(field.AsInteger());
        case ftBCD: return benchmark::DoNotOptimize(field.AsDecimal());
        case ftDate:
        case ftTimeStamp: return benchmark::DoNotOptimize(field.AsDateTime());
        default: return benchmark::DoNotOptimize(field.AsString());
    }
}

void EveryValue(benchmark::State& state, Where where) {
    const auto ours = [&] {
        TFDQuery* query = where.Query();
        for (query->Open(); !query->Eof(); query->Next()) {
            for (const TField* field : query->Fields()) Use(*field);
        }
        query->Free();
    };
    ours();  // makes the table when this is the first to need it
    const int64_t before = LocalTimesSoFar();
    ours();
    state.counters["local_times"] = static_cast<double>(LocalTimesSoFar() - before);
    Compare(state, [&] { FetchTyped(where.Raw(), kSelectClientes); },
            {Ours(ours),
             Peer([&] { QtEveryValue(where.At, where.Rows); }),
             {"fetch", [&] { FetchRaw(where.Raw(), kSelectClientes); }}});
    state.counters["allowed"] = 1.2;
}

void FirstPage(benchmark::State& state, Where where) {
    const auto open = [&](const UnicodeString& sql) {
        TFDQuery* query = where.Query(sql);
        query->Open();
        query->Free();
    };
    open(kSelectClientes);
    const int64_t before = SendsSoFar();
    open(kSelectClientes + u" WHERE CD > 0"_s);
    const int64_t sends = SendsSoFar() - before;
    Compare(state, [&] { OpenRaw(where.Raw(), kSelectClientes, kFirstPage); },
            {Ours([&] { open(kSelectClientes); }),
             Peer([&] { QtFirstPage(where.At, where.Rows, kFirstPage); }),
             {"again", [&] { FetchRaw(where.Raw(), kSelectClientes, kFirstPage); }}});
    state.counters["allowed"] = 1.5;
    state.counters["sends"] = static_cast<double>(sends);
}

void RecordCount(benchmark::State& state, Where where) {
    TFDQuery* query = where.Query();
    query->Open();
    Compare(state, [&] { FetchRaw(where.Raw(), u"SELECT COUNT(*) FROM CLIENTE"_s); },
            {Ours([&] { benchmark::DoNotOptimize(query->RecordCount()); }),
             Peer([&] { QtCount(where.At, where.Rows); }),
             {"fetch", [&] { FetchRaw(where.Raw(), kSelectClientes); }}});
    query->Free();
}

// ---- searching ----

void LocateNothing(benchmark::State& state, Where where) {
    TFDQuery* query = where.Query();
    query->Open();
    query->Last();
    std::vector<double> times;
    for (auto unused : state) {
        static_cast<void>(unused);
        times.push_back(SecondsOf([&] {
            benchmark::DoNotOptimize(
                query->Locate(u"NM"_s, u"maria xyzq"_s, loCaseInsensitive | loPartialKey));
        }));
        state.SetIterationTime(times.back());
    }
    query->Free();
    state.counters["ms_million"] = Median(times) * 1e9 / where.Rows;
    state.counters["allowed"] = 8;
    if (HasQtPeer()) state.counters["peer"] = QtLocateNothing(where.At, where.Rows) / Median(times);
}

// ---- writing ----

void PostRecords(TFDQuery& query, int firstKey) {
    for (int key = firstKey; key < firstKey + kPosts; ++key) {
        query.Append();
        query.Fields()[0]->SetAsInteger(key);
        query.Fields()[1]->SetAsString(novo::kNome);
        query.Fields()[2]->SetAsString(novo::kCpf);
        query.Fields()[3]->SetAsString(novo::kEmail);
        query.Fields()[4]->SetAsString(novo::kUf);
        query.Fields()[5]->SetAsDecimal({novo::kSaldo, 2});
        query.Fields()[6]->SetAsDateTime(TDateTime(novo::kNasc));
        query.Fields()[7]->SetAsDateTime(TDateTime(novo::kCriado));
        query.Fields()[8]->SetAsString(novo::kAtivo);
        query.Post();
    }
}

// Each turn's records have keys of their own and stay.
void Post(benchmark::State& state, Where where) {
    TFDConnection* connection = ClientesOf(where.At, where.Rows);
    TFDQuery* query = where.Query(kSelectClientes + u" WHERE CD < 0"_s);
    query->Open();
    int nextKey = where.Rows + 1;
    const auto turn = [&](auto work) {
        return [&, work] {
            work(nextKey);
            nextKey += kPosts;
        };
    };
    const auto inTransaction = [&](auto work) {
        return turn([&, work](int firstKey) {
            connection->StartTransaction();
            work(firstKey);
            connection->Commit();
        });
    };
    Compare(state, inTransaction([&](int firstKey) { InsertRaw(where.Raw(), firstKey, kPosts); }),
            {Ours(inTransaction([&](int firstKey) { PostRecords(*query, firstKey); })),
             Peer(turn([&](int firstKey) { QtInsert(where.At, where.Rows, firstKey, kPosts); }))});
    query->Free();
    state.counters["allowed"] = 1 / 0.85;
}

// ---- the list ----

int RoundsFor(int rows) {
    return rows >= 1'000'000 ? 5 : rows >= 100'000 ? 15 : 51;
}

void Register(Place place, int rows) {
    const auto add = [&](const char* name, void (*bench)(benchmark::State&, Where), int rounds) {
        const UnicodeString full =
            u"%1/%2/%3"_s.arg(QLatin1String(name), place == Place::Embedded ? u"embedded"_s : u"tcp"_s)
                .arg(rows);
        benchmark::RegisterBenchmark(full.toLatin1().constData(), bench, Where{place, rows})
            ->Iterations(rounds)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("AllRows", AllRows, RoundsFor(rows));
    add("EveryValue", EveryValue, RoundsFor(rows));
    add("FirstPage", FirstPage, 301);
    add("RecordCount", RecordCount, RoundsFor(rows));
    add("LocateNothing", LocateNothing, 51);
    add("Post", Post, 21);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<char*> arguments(argv, argv + argc);
    char table[] = "--benchmark_counters_tabular=true";
    arguments.push_back(table);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    std::vector<int> sizes = {10'000, 100'000, 1'000'000};
    if (const int rows = qEnvironmentVariableIntValue("FICHARIO_BENCH_ROWS"); rows > 0) sizes = {rows};
    for (const int rows : sizes) Register(Place::Embedded, rows);
    if (HasServer()) {
        for (const int rows : sizes) Register(Place::Server, rows);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
