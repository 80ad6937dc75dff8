// The state-registration validator: published numbers of every state, and what must be refused.
#include <gtest/gtest.h>
#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "platform/rtl/Exceptions.h"
#include "platform/system/Paths.h"
#include "tests/support/TextTable.h"
#include "tools/inscest/Regras.h"
#include "tools/inscest/Validador.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Valid(const QString& uf, const QString& number) {
    return InscricaoValida(number.toLatin1().toStdString(), uf.toStdString()) ? u"yes"_s : u"no"_s;
}

// Whether the number is valid as it is, but not with the next last digit.
QString Only(const QStringList& a) {
    const QChar last = a[1].back() == u'9' ? u'0' : QChar(a[1].back().unicode() + 1);
    return Valid(a[0], a[1].chopped(1) + last) == u"no" ? Valid(a[0], a[1]) : u"another digit too"_s;
}

TEST(Inscest, KnowsThePublishedNumbersOfAllStates) {
    CheckTextTable(QStringLiteral(INSCEST_TESTS "/tables/inscricoes.txt"),
                   {{"Only", Only}, {"Valid", [](const QStringList& a) { return Valid(a[0], a[1]); }}});
    EXPECT_EQ(Estados().size(), 27u);
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
