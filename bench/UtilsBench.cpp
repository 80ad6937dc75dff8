// The free functions beside a peer or the limit, both in this run.
//
//     bench_utils                       everything; MD5 over 512 MiB
//     bench_utils --benchmark_filter=Arredonda
//
// Counters: ratio is the time over that of the peer named with the benchmark. Allowed: MD5 1.18 (0.85 of the
// speed), texts 3, ExplodeStr 1.3; Arredonda 25 ns a call and `different` 0, a log line 50 µs.
#include <benchmark/benchmark.h>
#include <openssl/evp.h>
#include <charconv>
#include <cmath>
#include <cstring>
#include <QStringList>
#include <QTemporaryDir>
#include <random>
#include <vector>

#include "bench/Comparison.h"
#include "platform/system/Paths.h"
#include "utils/Funcoes.h"
#include "utils/MD5.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void BesidePeer(benchmark::State& state, const Work& peer, const Work& ours) {
    Compare(state, peer, {{"ratio", ours}});
}

// ---- digests, beside OpenSSL's ----

void Digest512MiB(benchmark::State& state) {
    const std::vector<char> bytes(512 << 20, 'x');
    BesidePeer(
        state,
        [&] {
            unsigned char digest[EVP_MAX_MD_SIZE];
            EVP_Digest(bytes.data(), bytes.size(), digest, nullptr, EVP_md5(), nullptr);
            benchmark::DoNotOptimize(digest);
        },
        [&] { benchmark::DoNotOptimize(MD5Buffer(bytes.data(), uint32_t(bytes.size()))); });
}
BENCHMARK(Digest512MiB)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

// ---- rounding ----

// Prices, ties and neighbours of ties.
std::vector<double> Values(size_t count) {
    std::mt19937_64 random(11);
    std::vector<double> values(count);
    for (size_t i = 0; i < count; ++i) {
        const double tie = double(int64_t(random() % 200'000'001) - 100'000'000) / 2000;
        const double price = double(random() % 100'000'000) / 10'000;
        values[i] = i % 4 == 0 ? price : i % 4 == 1 ? tie : std::nextafter(tie, i % 4 == 2 ? 1e12 : -1e12);
    }
    return values;
}

// What a quantity times a price gives.
std::vector<double> Amounts(size_t count) {
    std::mt19937_64 random(13);
    std::vector<double> values(count);
    for (double& value : values)
        value = double(random() % 100'000) / 1000 * (double(random() % 100'000) / 100);
    return values;
}

void Round(benchmark::State& state, const std::vector<double>& values) {
    size_t i = 0;
    for (auto unused : state) {
        static_cast<void>(unused);
        benchmark::DoNotOptimize(ArredondaDouble(values[i++ & 0xFFFF], 2));
    }
}
BENCHMARK_CAPTURE(Round, ties, Values(1 << 16))->Name("ArredondaDouble, three of four around ties");
BENCHMARK_CAPTURE(Round, amounts, Amounts(1 << 16))->Name("ArredondaDouble, amounts");

void RoundMoney(benchmark::State& state) {
    std::mt19937_64 random(12);
    std::vector<Currency> values(1 << 16);
    for (Currency& value : values) value = Currency::FromRaw(int64_t(random() % 200'000'000'000));
    size_t i = 0;
    for (auto unused : state) {
        static_cast<void>(unused);
        benchmark::DoNotOptimize(Arredonda(values[i++ & 0xFFFF], 2));
    }
}
BENCHMARK(RoundMoney)->Name("Arredonda of money");

// The steps one by one, the text of fifteen digits at every value.
double Literally(double value, int decimals) {
    const long double scale = std::pow(10.0L, decimals);
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value * scale, std::chars_format::general, 15);
    long double scaled = 0;
    std::from_chars(text, end.ptr, scaled);
    const long double whole = std::trunc(scaled), fraction = scaled - whole;
    return double((fraction >= 0.5L ? whole + 1 : fraction <= -0.5L ? whole - 1 : whole) / scale);
}

void EqualToTheText(benchmark::State& state) {
    const std::vector<double> values = Values(12'000'000);
    int64_t different = 0;
    for (auto unused : state) {
        static_cast<void>(unused);
        for (size_t i = 0; i < values.size(); ++i) {
            const int decimals = int(i % 5);
            const double ours = ArredondaDouble(values[i], decimals);
            const double text = Literally(values[i], decimals);
            different += std::memcmp(&ours, &text, sizeof ours) != 0;
        }
    }
    state.counters["different"] = double(different);
}
BENCHMARK(EqualToTheText)
    ->Name("ArredondaDouble against the text, 12,000,000 values")
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

// ---- texts, beside a loop that reads each character ----

constexpr qsizetype kTenMB = 10'000'000 / sizeof(QChar);

UnicodeString LongText(qsizetype size) {
    return u"João da Conceição & Filhos, 12.345-6; "_s.repeated(size / 38);
}

unsigned ReadEach(const UnicodeString& text) {
    unsigned sum = 0;
    for (const QChar c : text) {
        sum += c.unicode();
        benchmark::DoNotOptimize(sum);
    }
    return sum;
}

template <UnicodeString (*Function)(const UnicodeString&)>
void Text(benchmark::State& state) {
    const UnicodeString text = LongText(state.range(0));
    BesidePeer(
        state, [&] { benchmark::DoNotOptimize(ReadEach(text)); },
        [&] { benchmark::DoNotOptimize(Function(text)); });
}
BENCHMARK(Text<RemoveAcentos>)->Name("RemoveAcentos")->Arg(kTenMB / 10)->Arg(kTenMB)->UseManualTime();
BENCHMARK(Text<GetNumbers>)->Name("GetNumbers")->Arg(kTenMB / 10)->Arg(kTenMB)->UseManualTime();

void Explode(benchmark::State& state) {
    const UnicodeString text = LongText(kTenMB);
    BesidePeer(
        state, [&] { benchmark::DoNotOptimize(text.split(u';')); },
        [&] { benchmark::DoNotOptimize(ExplodeStr(text, u';')); });
}
BENCHMARK(Explode)->Name("ExplodeStr, beside QString::split")->UseManualTime()->Unit(benchmark::kMillisecond);

// ---- log ----

void LogLine(benchmark::State& state) {
    const QTemporaryDir folder;
    SetProgramFolder(folder.path());
    for (auto unused : state) {
        static_cast<void>(unused);
        Log(u"Pedido 1234 confirmado para João da Conceição."_s);
    }
}
BENCHMARK(LogLine)->Name("one log line, open and close included")->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
