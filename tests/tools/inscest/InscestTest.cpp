// The state-registration validator: published numbers of every state, and what must be refused.
#include <gtest/gtest.h>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "platform/rtl/Exceptions.h"
#include "platform/system/Paths.h"
#include "tools/inscest/Regras.h"
#include "tools/inscest/Validador.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Numbers that the states or companies have published: valid, and invalid with another last digit unless the
// state's rule knows two.
const char* const kValid[] = {
    "AC 0100482300112", "AC 01.008.267/001-08", "AL 240000048",      "AL 242258174",
    "AP 030123459",     "AP 030000080",         "AP 030000160",      "AP 030170020",
    "AP 030170071",     "AP 030190240",         "AM 049009761",      "AM 04.193.980-8",
    "BA 12345663",      "BA 61234557",          "BA 100000306",      "BA 162345651",
    "BA 077028884",     "CE 06000001-5",        "CE 853511942",      "DF 0730000100109",
    "DF 0824761500136", "ES 999999990",         "ES 082376123",      "GO 109876547",
    "GO 100000070",     "GO 200245210",         "MA 120000385",      "MA 120000130",
    "MT 0013000001-9",  "MT 130000019",         "MT 1301815443",     "MS 282909575",
    "MS 500000000",     "MG 0623079040081",     "MG 4333908330410",  "PA 159999995",
    "PA 750000023",     "PB 060000015",         "PB 853512230",      "PR 123.45678-50",
    "PR 4447953604",    "PE 032141840",         "PE 18100100000049", "PI 012345679",
    "PI 052364534",     "RJ 99999993",          "RJ 62545470",       "RN 200400401",
    "RN 2000400400",    "RS 224/3658792",       "RS 1202762660",     "RO 00000000625213",
    "RO 101625213",     "RO 00000003836321",    "RO 00000001721500", "RR 240066281",
    "RR 240017556",     "SC 251040852",         "SC 330430572",      "SE 271234563",
    "SE 017682606",     "SP 110.042.490.114",   "SP P011004243002",  "SP p-01100424.3/002",
    "TO 29010227836",   "TO 290227836",         "TO 294150870"};

const char* const kInvalid[] = {"AC 0200482300112",
                                "AL 250000048",
                                "AP 040123459",
                                "DF 0930000100109",
                                "GO 309876547",
                                "MA 130000385",
                                "MS 290000000",
                                "PA 740000023",
                                "RN 210400401",
                                "RR 250066281",
                                "SP 110042490115",
                                "SP P111004243002",
                                "TO 29040227836",
                                "RJ 999999932",
                                "ES 9999999901",
                                "SP 11004249011A",
                                "SP ",
                                "SP P",
                                "ZZ 12345678",
                                "S 110042490114",
                                "SP 1100424901140000000000000000000000000000",
                                "BA \xE1\xE9"};

std::pair<std::string, std::string> Split(const std::string& line) {
    return {line.substr(0, line.find(' ')), line.substr(line.find(' ') + 1)};
}

TEST(Inscest, KnowsThePublishedNumbersOfAllStates) {
    for (const char* line : kValid) {
        SCOPED_TRACE(line);
        auto [uf, number] = Split(line);
        EXPECT_TRUE(InscricaoValida(number, uf));
        if (uf == "SP" && (number[0] == 'P' || number[0] == 'p')) continue;  // its last digits are free
        char& last = number.back();
        last = last == '9' ? '0' : char(last + 1);
        EXPECT_FALSE(InscricaoValida(number, uf));
    }
    for (const char* line : kInvalid) {
        SCOPED_TRACE(line);
        const auto [uf, number] = Split(line);
        EXPECT_FALSE(InscricaoValida(number, uf));
    }
    EXPECT_EQ(Estados().size(), 27u);
    for (const char* exempt : {"ISENTO", "isento", " Isento"}) EXPECT_TRUE(InscricaoValida(exempt, "SP"));
}

TEST(Inscest, AcceptsBothDigitsWhereTheTextsOfGoiasContradict) {
    for (const char* number : {"101031051", "101031050", "101199971", "110944021", "110944020"})
        EXPECT_TRUE(InscricaoValida(number, "GO"));
    EXPECT_FALSE(InscricaoValida("101031052", "GO"));
    EXPECT_FALSE(InscricaoValida("101031131", "GO"));  // remainder 0 is 0 there too
}

// Of ten last digits at most one is right (two in Goiás), whatever the rest of the number is.
TEST(Inscest, LeavesOneLastDigitToEveryNumber) {
    std::mt19937 random(5);
    for (const Estado& state : Estados()) {
        for (const Formato& format : state.formatos) {
            if (format.rural) continue;
            SCOPED_TRACE(std::string(state.uf) + " " + std::to_string(format.tamanho));
            for (int turn = 0; turn < 200; ++turn) {
                std::string number(format.inicios.substr(0, format.inicios.find(' ')));
                while (number.size() < size_t(format.tamanho)) number += char('0' + random() % 10);
                int right = 0;
                for (char digit = '0'; digit <= '9'; ++digit) {
                    number.back() = digit;
                    right += InscricaoValida(number, state.uf);
                }
                EXPECT_LE(right, state.uf == "GO" ? 2 : 1) << number;
            }
        }
    }
}

TEST(Inscest, AgreesWithTheCollectedNumbersWhereTheyAreAtHand) {
    std::ifstream file(IE_VECTORS);
    if (!file) GTEST_SKIP() << "no collection here";
    std::string line;
    std::getline(file, line);
    int count = 0;
    while (std::getline(file, line)) {
        std::istringstream fields(line);
        std::string uf, number, valid, note;
        std::getline(fields, uf, '\t');
        std::getline(fields, number, '\t');
        std::getline(fields, valid, '\t');
        EXPECT_EQ(InscricaoValida(number, uf), valid == "1") << line;
        ++count;
    }
    EXPECT_GT(count, 100);
}

// The function of the library of free functions, through the library that was built.
TEST(Inscest, IsFoundBesideTheProgram) {
    SetProgramFolder(u"/nenhum/lugar"_s);
    for (const auto& number : {u"ISENTO"_s, u"110042490114"_s}) {
        try {
            InscEstadual(number, u"SP"_s);
            ADD_FAILURE() << "no exception";
        } catch (const Exception& e) {
            EXPECT_EQ(e.Message, u"Biblioteca \"DllInscE32.dll\" não encontrada."_s);
        }
    }
    SetProgramFolder(QStringLiteral(INSCEST_FOLDER));
    EXPECT_TRUE(InscEstadual(u"110042490114"_s, u"SP"_s));
    EXPECT_TRUE(InscEstadual(u"ISENTO"_s, u"SP"_s));
    EXPECT_FALSE(InscEstadual(u"110042490115"_s, u"sp"_s));
    EXPECT_FALSE(InscEstadual({}, u"SP"_s));
    SetProgramFolder({});
}

}  // namespace
