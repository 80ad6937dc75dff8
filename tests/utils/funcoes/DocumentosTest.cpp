#include "utils/funcoes/Documentos.h"

#include <gtest/gtest.h>

#include "platform/rtl/Exceptions.h"

using namespace Qt::Literals::StringLiterals;

TEST(Documentos, ChecksCpfAndCnpj) {
    const struct {
        UnicodeString Digits;
        bool Cpf, Cnpj;
    } cases[] = {
        {u"52998224725"_s, true, false},     {u"12345678909"_s, true, false},
        {u"52998224735"_s, false, false},    {u"52998224724"_s, false, false},  // first, second check digit
        {u"11111111111"_s, false, false},    {u"123.456.789-09"_s, false, false},
        {u"11222333000181"_s, false, true},  {u"11444777000161"_s, false, true},
        {u"11222333000191"_s, false, false}, {u"11222333000182"_s, false, false},
        {u"00000000000000"_s, false, false}, {UnicodeString(), false, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Digits.toStdString());
        EXPECT_EQ(CPF(c.Digits), c.Cpf);
        if (c.Digits.contains(u'.')) continue;  // its length passes, its dots would raise
        EXPECT_EQ(CNPJ(c.Digits), c.Cnpj);
    }
    EXPECT_THROW(CPF(u"5299822472x"_s), EConvertError);
    EXPECT_FALSE(Mod11(u"7"_s, 9));
}

TEST(Documentos, Formats) {
    const struct {
        UnicodeString (*Format)(const UnicodeString&);
        UnicodeString Digits, Expected;
    } cases[] = {{FormatCPF, u"52998224725"_s, u"529.982.247-25"_s},
                 {FormatCPF, u"11222333000181"_s, u"11.222.333/0001-81"_s},
                 {FormatCPF, u"1234567890"_s, u"1234567890"_s},
                 {FormatTelefone, u"1133334444"_s, u"(11)3333-4444"_s},
                 {FormatTelefone, u"11933334444"_s, u"(11)93333-4444"_s}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Digits.toStdString());
        EXPECT_EQ(c.Format(c.Digits), c.Expected);
    }
}
