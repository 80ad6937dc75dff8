#include "forms/browse/Filtros.h"

#include <gtest/gtest.h>
#include <QStringList>

#include "platform/rtl/DateTime.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "tests/support/TextTable.h"

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
};

TEST_F(Filtros, BecomeConditionsParametersAndLines) {
    const auto value = [](const QString& text) {
        TDateTime day;
        bool number = false;
        if (const int value = text.toInt(&number); number) return Variant(value);
        if (text.isEmpty()) return Variant();
        if (text.contains(u',')) return Variant(Variant(text).ToDecimal());
        return TryStrToDate(text, day) ? Variant(day) : Variant(text);
    };
    CheckTextTable(BROWSE_TESTS "/tables/filtros.txt",
                   {{u"Filter"_s, [&](const QStringList& a) {
                         for (TField* field : {Name, Code, Value, Stamp, Day}) {
                             if (field->FieldName() != a[0]) continue;
                             const TFiltro filter =
                                 Filter(field, a[1].toInt(), value(a[2]), value(a[3]), a[4].toInt());
                             EXPECT_EQ(CondicaoDosFiltros({}, {filter}).section(u' ', 0, 1), u" WHERE"_s);
                             return QStringList{CondicaoDosFiltros({}, {filter}).section(u' ', 2),
                                                Parameters({filter}).join(u','), TextoDoFiltro(filter)}
                                 .join(u"; "_s);
                         }
                         return u"no such field"_s;
                     }}});
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
