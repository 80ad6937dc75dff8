#include "tools/inscest/Validador.h"

#include <array>

#include "tools/inscest/Regras.h"

namespace {

constexpr size_t kLongest = 14;  // digits
constexpr int kGoiasFirst = 10103105, kGoiasLast = 10119997, kGoiasOdd = 11094402;

struct Texto {
    std::array<char, kLongest + 1> letras = {};
    size_t tamanho = 0;
    bool cabe = true;

    void Juntar(char c) {
        if (tamanho < letras.size())
            letras[tamanho++] = c;
        else
            cabe = false;
    }
    std::string_view Ver() const { return {letras.data(), tamanho}; }
};

char Maiuscula(char c) {
    return c >= 'a' && c <= 'z' ? char(c - 32) : c;
}

Texto Limpo(std::string_view text) {
    Texto clean;
    for (const char c : text) {
        if (c != '.' && c != '-' && c != '/' && c != ' ') clean.Juntar(Maiuscula(c));
    }
    return clean;
}

bool SoDigitos(std::string_view text) {
    for (const char c : text) {
        if (c < '0' || c > '9') return false;
    }
    return !text.empty();
}

// Whether the text begins with one of the words; no words: always.
bool Comeca(std::string_view text, std::string_view words) {
    if (words.empty()) return true;
    while (!words.empty()) {
        const size_t end = words.find(' ');
        if (text.starts_with(words.substr(0, end))) return true;
        words = end == words.npos ? std::string_view() : words.substr(end + 1);
    }
    return false;
}

int Algarismo(std::string_view digits, int place) {
    return digits[size_t(place - 1)] - '0';
}

int Soma(std::string_view digits, const Digito& rule) {
    int sum = 0, place = rule.de;
    for (const int weight : rule.pesos) {
        while (place >= rule.primeiroPulado && place <= rule.ultimoPulado) ++place;
        const int product = Algarismo(digits, place++) * weight;
        sum += rule.conta == Conta::SomaM10 ? product / 10 + product % 10 : product;
    }
    return sum;
}

int PrimeirosOito(std::string_view digits) {
    int value = 0;
    for (int place = 1; place <= 8; ++place) value = value * 10 + Algarismo(digits, place);
    return value;
}

int PorOnze(int sum) {
    const int rest = sum % 11;
    return rest < 2 ? 0 : 11 - rest;
}

int PorDez(int sum) {
    return (10 - sum % 10) % 10;
}

int DoAmapa(int sum, int number) {
    const bool first = number >= 3000001 && number <= 3017000;
    const bool second = number >= 3017001 && number <= 3019022;
    const int value = 11 - (sum + (first ? 5 : second ? 9 : 0)) % 11;
    return value == 10 ? 0 : value == 11 ? (second ? 1 : 0) : value;
}

bool DaBahiaPorDez(std::string_view digits) {
    const int second = Algarismo(digits, 2);
    return second <= 5 || second == 8;
}

bool CertoEmGoias(int sum, int number, int given) {
    const bool either = sum % 11 == 1 && number >= kGoiasFirst && number <= kGoiasLast;
    if (either || number == kGoiasOdd) return given == 0 || given == 1;
    return given == PorOnze(sum);
}

bool Certo(std::string_view digits, const Digito& rule) {
    const int sum = Soma(digits, rule);
    const int given = Algarismo(digits, rule.lugar);
    switch (rule.conta) {
        case Conta::M11: return given == PorOnze(sum);
        case Conta::M11b: return given == (11 - sum % 11) % 10;
        case Conta::MSP: return given == sum % 11 % 10;
        case Conta::M9: return given == sum % 9;
        case Conta::M10:
        case Conta::SomaM10: return given == PorDez(sum);
        case Conta::BahiaM: return given == (DaBahiaPorDez(digits) ? PorDez(sum) : PorOnze(sum));
        case Conta::Amapa: return given == DoAmapa(sum, PrimeirosOito(digits));
        case Conta::Goias: return CertoEmGoias(sum, PrimeirosOito(digits), given);
    }
    return false;
}

bool Segue(std::string_view digits, const Formato& format) {
    Texto full;
    for (int missing = format.completar - format.tamanho; missing > 0; --missing) full.Juntar('0');
    for (const char c : digits) full.Juntar(c);
    if (!Comeca(full.Ver(), format.inicios)) return false;
    if (!format.tipos.empty() && !Comeca(full.Ver().substr(2), format.tipos)) return false;
    for (const Digito& rule : format.digitos) {
        if (!Certo(full.Ver(), rule)) return false;
    }
    return true;
}

const Estado* EstadoDe(std::string_view uf) {
    if (uf.size() != 2) return nullptr;
    const char letters[] = {Maiuscula(uf[0]), Maiuscula(uf[1])};
    for (const Estado& state : Estados()) {
        if (state.uf == std::string_view(letters, 2)) return &state;
    }
    return nullptr;
}

}  // namespace

bool InscricaoValida(std::string_view number, std::string_view uf) noexcept {
    const Texto clean = Limpo(number);
    if (!clean.cabe) return false;
    if (clean.Ver() == "ISENTO") return true;
    const Estado* state = EstadoDe(uf);
    if (!state) return false;
    const bool rural = clean.Ver().starts_with('P');
    const std::string_view digits = clean.Ver().substr(rural ? 1 : 0);
    if (!SoDigitos(digits)) return false;
    for (const Formato& format : state->formatos) {
        if (format.rural == rural && size_t(format.tamanho) == digits.size() && Segue(digits, format))
            return true;
    }
    return false;
}
