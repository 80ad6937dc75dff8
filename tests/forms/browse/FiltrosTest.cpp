#include "forms/browse/Filtros.h"

#include <gtest/gtest.h>
#include <QStringList>

#include "platform/rtl/DateTime.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Filtros : public testing::Test {
  protected:
    void TearDown() override { Owner->Free(); }

    template <class T>
    T* Field(const UnicodeString& name, TFieldType type, double largest = 0,
             const UnicodeString& column = {}) {
        auto* field = new T(Owner);
        field->SetFieldName(name);
        field->SetDisplayLabel(name.toLower());
        TFieldDescription description;
        description.Type = type;
        description.Largest = largest;
        description.BaseColumn = column;
        field->Describe(description);
        return field;
    }

    TFiltro Filter(TField* field, int oper, const Variant& first = {}, const Variant& second = {},
                   int order = 0) {
        TFiltro filter{
            .Campo = field, .DisplayText = field->DisplayLabel(), .Valor1 = first, .Valor2 = second};
        EscolherOperador(filter, oper);
        EscolherOrdem(filter, order);
        return filter;
    }

    // The last instant of a day shows as "fim".
    static UnicodeString Shown(const Variant& value) {
        if (value.Kind() != vkDateTime) return value.ToText();
        const TDateTime day = DateOf(value.ToDateTime());
        const double time = value.ToDateTime().Value - day.Value;
        return DateToStr(day) + (time == 0 ? u""_s : time > 0.999999 ? u" fim"_s : u" ?"_s);
    }

    // "name=value" of every parameter.
    static QStringList Parameters(const std::vector<TFiltro>& filters) {
        QStringList result;
        for (const auto& [name, value] : ParametrosDosFiltros(filters)) result << name + u'=' + Shown(value);
        return result;
    }

    TComponent* Owner = new TComponent(nullptr);
    TField* Name = Field<TStringField>(u"nm"_s, ftString, 0, u"NM"_s);
    TField* Code = Field<TIntegerField>(u"CD"_s, ftInteger, 2147483647);
    TField* Value = Field<TBCDField>(u"VL"_s, ftBCD, 1e15);
    TField* Stamp = Field<TSQLTimeStampField>(u"DT"_s, ftTimeStamp);
    TField* Day = Field<TDateField>(u"DIA"_s, ftDate);
    Variant First = EncodeDate(2024, 1, 31), Last = EncodeDate(2024, 2, 29);
};

TEST_F(Filtros, BecomeConditionsParametersAndLines) {
    const struct {
        TFiltro Filter;
        const char16_t* Condition;
        const char16_t* Parameters;
        const char16_t* Line;
    } cases[] = {
        {Filter(Name, 0, u"Ana"_s), u"(NM = :vFILTRO0)", u"vFILTRO0=Ana", u"\"nm\" = 'Ana' "},
        {Filter(Name, 6, u"ab"_s, {}, 1), u"(NM LIKE :vFILTRO0)", u"vFILTRO0=ab%",
         u"\"nm\" Começa com 'ab' (Ascendente)"},
        {Filter(Name, 7, u"ab"_s), u"(NM LIKE '%' ||  :vFILTRO0)", u"vFILTRO0=ab%", u"\"nm\" Contém 'ab' "},
        {Filter(Name, 9), u"(NM IS NULL)", u"", u"\"nm\" é Nulo  "},
        {Filter(Name, 10, {}, {}, 2), u"(NM IS NOT NULL)", u"", u"\"nm\" Não é Nulo  (Descendente)"},
        {Filter(Code, 4, 7), u"(CD >= :vFILTRO0)", u"vFILTRO0=7", u"\"cd\" >= 7 "},
        {Filter(Day, 8, First, Last), u"(DIA BETWEEN :vFI_INI0 AND :vFI_FIN0)",
         u"vFI_INI0=31/01/2024,vFI_FIN0=29/02/2024", u"\"dia\" Entre '31/01/2024' e '29/02/2024' "},
        {Filter(Stamp, 8, First, Last), u"(DT BETWEEN :vFI_INI0 AND :vFI_FIN0)",
         u"vFI_INI0=31/01/2024,vFI_FIN0=29/02/2024 fim", u"\"dt\" Entre '31/01/2024' e '29/02/2024' "},
        {Filter(Stamp, 2, First), u"(DT > :vFILTRO0)", u"vFILTRO0=31/01/2024 fim", u"\"dt\" > '31/01/2024' "},
        {Filter(Stamp, 3, First), u"(DT < :vFILTRO0)", u"vFILTRO0=31/01/2024", u"\"dt\" < '31/01/2024' "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(QString::fromUtf16(c.Line).toStdString());
        EXPECT_EQ(CondicaoDosFiltros({}, {c.Filter}), u" WHERE "_s + QString::fromUtf16(c.Condition));
        EXPECT_EQ(Parameters({c.Filter}).join(u','), QString::fromUtf16(c.Parameters));
        EXPECT_EQ(TextoDoFiltro(c.Filter), QString::fromUtf16(c.Line));
    }
}

TEST_F(Filtros, AreNumberedByPlaceAndOrderedByOncePerField) {
    std::vector<TFiltro> filters;
    JuntarFiltro(filters, Filter(Code, 2, 1, {}, 1));
    JuntarFiltro(filters, Filter(Name, 9, {}, {}, 2));
    JuntarFiltro(filters, Filter(Code, 3, 9, {}, 2));
    EXPECT_EQ(CondicaoDosFiltros(u"X = 1"_s, filters),
              u" WHERE X = 1 AND (CD > :vFILTRO0) AND (NM IS NULL) AND (CD < :vFILTRO2)"_s);
    EXPECT_EQ(OrdemDosFiltros(filters), u"ORDER BY NM DESC, CD DESC"_s);
    filters.erase(filters.begin());
    EXPECT_EQ(Parameters(filters), QStringList{u"vFILTRO1=9"_s});
    EXPECT_EQ(CondicaoDosFiltros({}, {}), UnicodeString());
    EXPECT_EQ(OrdemDosFiltros({Filter(Code, 0, 1)}), UnicodeString());
}

TEST_F(Filtros, TakeValuesOfTheFieldsTypeAndRefuseOthers) {
    EXPECT_EQ(StrToVarType(u"12,34"_s, *Value).ToDecimal(), Variant(u"12,34"_s).ToDecimal());
    EXPECT_EQ(StrToVarType(u"O'Brien"_s, *Name).ToText(), u"O'Brien"_s);
    for (const auto& [field, text] :
         {std::pair(Code, u"2147483648"_s), {Code, u"1x"_s}, {Code, u""_s}, {Value, u"1,2,3"_s}}) {
        SCOPED_TRACE(text.toStdString());
        EXPECT_THROW(StrToVarType(text, *field), EConvertError);
    }
}

}  // namespace
