#include "tools/inscest/Regras.h"

namespace {

using P = uint8_t;

constexpr P kW9[] = {9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kDe4[] = {4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kDe5[] = {5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kDe8[] = {8, 7, 6, 5, 4, 3, 2};
constexpr P kDe10[] = {10, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kMatoGrosso[] = {3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kMinasSoma[] = {1, 2, 1, 1, 2, 1, 2, 1, 2, 1, 2};
constexpr P kMinas[] = {3, 2, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kParana1[] = {3, 2, 7, 6, 5, 4, 3, 2};
constexpr P kParana2[] = {4, 3, 2, 7, 6, 5, 4, 3, 2};
constexpr P kPernambucoAntigo[] = {5, 4, 3, 2, 1, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kRio[] = {2, 7, 6, 5, 4, 3, 2};
constexpr P kRioGrande[] = {2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kRondonia[] = {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
constexpr P kRondoniaAntigo[] = {6, 5, 4, 3, 2};
constexpr P kRoraima[] = {1, 2, 3, 4, 5, 6, 7, 8};
constexpr P kSaoPaulo1[] = {1, 3, 4, 5, 6, 7, 8, 10};
constexpr P kSaoPaulo2[] = {3, 2, 10, 9, 8, 7, 6, 5, 4, 3, 2};

constexpr Digito kNono[] = {{9, 1, kW9, Conta::M11}};
constexpr Digito kDoisDeTreze[] = {{12, 1, kDe4, Conta::M11}, {13, 1, kDe5, Conta::M11}};
constexpr Digito kAmapa[] = {{9, 1, kW9, Conta::Amapa}};
constexpr Digito kGoias[] = {{9, 1, kW9, Conta::Goias}};
// The last digit comes first; the one before it is reckoned with the last.
constexpr Digito kBahia[] = {{9, 1, kDe8, Conta::BahiaM}, {8, 1, kW9, Conta::BahiaM, 8, 8}};
constexpr Digito kMatoGrossoD[] = {{11, 1, kMatoGrosso, Conta::M11}};
constexpr Digito kMinasD[] = {{12, 1, kMinasSoma, Conta::SomaM10}, {13, 1, kMinas, Conta::M11}};
constexpr Digito kParana[] = {{9, 1, kParana1, Conta::M11}, {10, 1, kParana2, Conta::M11}};
constexpr Digito kPernambuco[] = {{8, 1, kDe8, Conta::M11}, {9, 1, kW9, Conta::M11}};
constexpr Digito kPernambucoAntigoD[] = {{14, 1, kPernambucoAntigo, Conta::M11b}};
constexpr Digito kRioD[] = {{8, 1, kRio, Conta::M11}};
constexpr Digito kRioGrandeDoNorte10[] = {{10, 1, kDe10, Conta::M11}};
constexpr Digito kRioGrandeD[] = {{10, 1, kRioGrande, Conta::M11}};
constexpr Digito kRondoniaD[] = {{14, 1, kRondonia, Conta::M11b}};
constexpr Digito kRondoniaAntigoD[] = {{9, 4, kRondoniaAntigo, Conta::M11b}};
constexpr Digito kRoraimaD[] = {{9, 1, kRoraima, Conta::M9}};
constexpr Digito kSaoPaulo[] = {{9, 1, kSaoPaulo1, Conta::MSP}, {12, 1, kSaoPaulo2, Conta::MSP}};
constexpr Digito kSaoPauloRural[] = {{9, 1, kSaoPaulo1, Conta::MSP}};
constexpr Digito kTocantinsAntigo[] = {{11, 1, kW9, Conta::M11, 3, 4}};

constexpr Formato kSimples[] = {{9, "", kNono}};
constexpr Formato kAC[] = {{13, "01", kDoisDeTreze}};
constexpr Formato kAL[] = {{9, "24", kNono}};
constexpr Formato kAP[] = {{9, "03", kAmapa}};
constexpr Formato kBA[] = {{8, "", kBahia, 9}, {9, "", kBahia}};
constexpr Formato kDF[] = {{13, "07 08", kDoisDeTreze}};
constexpr Formato kGO[] = {{9, "10 11 15 20 21 22 23 24 25 26 27 28 29", kGoias}};
constexpr Formato kMA[] = {{9, "12", kNono}};
constexpr Formato kMT[] = {{9, "", kMatoGrossoD, 11}, {10, "", kMatoGrossoD, 11}, {11, "", kMatoGrossoD}};
constexpr Formato kMS[] = {{9, "28 50", kNono}};
constexpr Formato kMG[] = {{13, "", kMinasD}};
constexpr Formato kPA[] = {{9, "15 75 76 77 78 79", kNono}};
constexpr Formato kPR[] = {{10, "", kParana}};
constexpr Formato kPE[] = {{9, "", kPernambuco}, {14, "", kPernambucoAntigoD}};
constexpr Formato kRJ[] = {{8, "", kRioD}};
constexpr Formato kRN[] = {{9, "20", kNono}, {10, "20", kRioGrandeDoNorte10}};
constexpr Formato kRS[] = {{10, "", kRioGrandeD}};
constexpr Formato kRO[] = {{14, "", kRondoniaD}, {9, "", kRondoniaAntigoD}};
constexpr Formato kRR[] = {{9, "24", kRoraimaD}};
constexpr Formato kSP[] = {{12, "", kSaoPaulo}, {12, "0", kSaoPauloRural, 0, "", true}};
constexpr Formato kTO[] = {{9, "", kNono}, {11, "", kTocantinsAntigo, 0, "01 02 03 99"}};

constexpr Estado kEstados[] = {
    {"AC", kAC},      {"AL", kAL},      {"AM", kSimples}, {"AP", kAP}, {"BA", kBA},      {"CE", kSimples},
    {"DF", kDF},      {"ES", kSimples}, {"GO", kGO},      {"MA", kMA}, {"MG", kMG},      {"MS", kMS},
    {"MT", kMT},      {"PA", kPA},      {"PB", kSimples}, {"PE", kPE}, {"PI", kSimples}, {"PR", kPR},
    {"RJ", kRJ},      {"RN", kRN},      {"RO", kRO},      {"RR", kRR}, {"RS", kRS},      {"SC", kSimples},
    {"SE", kSimples}, {"SP", kSP},      {"TO", kTO}};

}  // namespace

std::span<const Estado> Estados() {
    return kEstados;
}
