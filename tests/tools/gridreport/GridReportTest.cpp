// The printing program: what stands in the files that it writes, its preview, and what it says when it
// cannot.
#include <gtest/gtest.h>
#include <cerrno>
#include <QDir>
#include <QPrinter>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include "platform/data/RowsFile.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "tests/support/Screen.h"
#include "tools/gridreport/Exporta.h"
#include "tools/gridreport/Janela.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLinhas = 150;
const TDateTime kQuando(45292.5);  // 01/01/2024 12:00

const QByteArray kDefinicao =
    uR"([INFORMATION]
Name=Preços à vista
Count=8
[FIELD_00]
FieldName=CD_PRO
DisplayLabel=Código
[FIELD_01]
FieldName=NM_PRO
DisplayLabel=Descrição
DisplayWidth=50
[FIELD_02]
FieldName=VL_PRO
DisplayLabel=Preço
DisplayWidth=14
[FIELD_03]
FieldName=DT_CAD
DisplayLabel=Cadastro
DisplayFormat=dd/mm/yyyy
[FIELD_04]
FieldName=NR_DOC
DisplayLabel=CPF
DisplayWidth=14
EditMask=999.999.999-99;0; 
[FIELD_05]
FieldName=TX_SEG
DisplayLabel=Segredo
Visible=0
[FIELD_06]
FieldName=QT_EST
DisplayLabel=Estoque
DisplayFormat=,0' un';;-
[FIELD_07]
FieldName=QT_MED
DisplayLabel=Média de vendas
)"_s.toLatin1();

class GridReport : public testing::Test {
  protected:
    void SetUp() override {
        WriteWholeFile(Em(u"repvwi.dat"_s), kDefinicao);
        TRowsWriter writer(Em(u"repvw.dat"_s),
                           {{u"CD_PRO"_s, ftInteger, 0},
                            {u"NM_PRO"_s, ftString, 60},
                            {u"VL_PRO"_s, ftBCD, 4},
                            {u"DT_CAD"_s, ftTimeStamp, 0},
                            {u"NR_DOC"_s, ftString, 11},
                            {u"TX_SEG"_s, ftMemo, 0},
                            {u"QT_EST"_s, ftInteger, 0},
                            {u"QT_MED"_s, ftFloat, 0}},
                           kLinhas);
        for (int i = 1; i <= kLinhas; ++i)
            writer.Add({i, u"Pão; \"%1\""_s.arg(i), i == 2 ? Variant::Null() : Variant(Decimal{i, 4}),
                        i == 3 ? TDateTime(-690000.0) : kQuando, u"52998224725"_s, u"segredo"_s, 1000, 0.5});
        writer.Finish();
    }
    UnicodeString Em(const UnicodeString& nome) const { return Folder.filePath(nome); }
    TRelatorio Ler() const { return LerDefinicao(Em(u"repvwi.dat"_s), Em(u"repvw.dat"_s)); }
    QStringList Arquivos() const { return QDir(Folder.path()).entryList(QDir::Files); }

    static QByteArray Saida(const QString& programa, const QStringList& argumentos) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        process.setProcessEnvironment(environment);
        process.start(programa, argumentos);
        EXPECT_TRUE(process.waitForFinished()) << qPrintable(programa);
        const QByteArray errors = process.readAllStandardError();
        return process.exitCode() == 0 ? process.readAllStandardOutput() : errors;
    }
    UnicodeString Programa(const QStringList& argumentos) const {
        return QString::fromUtf8(
            Saida(QStringLiteral(GRIDREPORT), QStringList{u"--pasta"_s, Folder.path()} + argumentos));
    }
    static UnicodeString TextoDoPdf(const UnicodeString& arquivo) {
        return QString::fromUtf8(Saida(u"pdftotext"_s, {u"-layout"_s, arquivo, u"-"_s})).simplified();
    }

    QTemporaryDir Folder;
};

TEST_F(GridReport, WritesTheThreeKindsOfFilesWithoutAScreen) {
    const UnicodeString pdf = Em(u"r.pdf"_s), csv = Em(u"r.CSV"_s), xlsx = Em(u"r.xlsx"_s);
    EXPECT_EQ(Programa({u"-o5281"_s, u"--salvar"_s, pdf, u"--salvar"_s, csv, u"--salvar"_s, xlsx}),
              pdf + u'\n' + csv + u'\n' + xlsx + u'\n');
    const UnicodeString text = TextoDoPdf(pdf);
    EXPECT_TRUE(text.startsWith(u"Preços à vista "_s)) << qPrintable(text.left(300));
    EXPECT_EQ(text.count(u"Código Descrição Preço Cadastro CPF Estoque Média d"_s), 2)
        << qPrintable(text.left(300));
    EXPECT_FALSE(text.contains(u"###"_s))
        << "a title that does not fit is shortened, only numbers are hidden";
    EXPECT_EQ(text.count(u"150 registros Página 2 de 2"_s), 1);
    EXPECT_TRUE(text.contains(u"1 Pão; \"1\" 0,0001 01/01/2024 529.982.247-25 1.000 un 0,5"_s));
    EXPECT_TRUE(text.contains(u"Total 1,1323 150.000 un 75,00"_s)) << qPrintable(text.right(300));
    EXPECT_FALSE(text.contains(u"segredo"_s));
    const QByteArray rows = ReadWholeFile(csv);
    EXPECT_TRUE(
        rows.startsWith("\xEF\xBB\xBF"
                        "Código;Descrição;Preço;Cadastro;CPF;Estoque;Média de vendas\r\n"
                        "1;\"Pão; \"\"1\"\"\";0,0001;01/01/2024;52998224725;1000;0,5\r\n"
                        "2;\"Pão; \"\"2\"\"\";;"))
        << rows.first(200).constData();
    const QByteArray sheet = Saida(u"unzip"_s, {u"-p"_s, xlsx, u"xl/worksheets/sheet1.xml"_s});
    for (const char* cell : {"<v>0.0001</v>", "<v>45292.5</v>", "<v>1000</v>", "<t>52998224725</t>"})
        EXPECT_TRUE(sheet.contains(cell)) << cell;
    const QByteArray styles = Saida(u"unzip"_s, {u"-p"_s, xlsx, u"xl/styles.xml"_s});
    for (const char* code : {R"("#,##0\ \u\n;-#,##0\ \u\n;\-")", R"("#,##0.0000")", R"("dd/mm/yyyy")"})
        EXPECT_TRUE(styles.contains(code)) << code << styles.constData();
}

TEST_F(GridReport, SaysInOneSentenceWhatIsWrong) {
    const struct {
        const char* Caso;
        QByteArray Definicao, Linhas;
        QStringList Argumentos;
        const char16_t* Frase;
    } casos[] = {
        {"no screen", {}, {}, {}, u"Não há tela gráfica para mostrar o relatório. Use --salvar ARQUIVO."},
        {"ending", {}, {}, {u"--salvar"_s, u"/nada.txt"_s}, u"deve terminar em .pdf, .csv ou .xlsx."},
        {"folder",
         {},
         {},
         {u"--salvar"_s, u"/nada/x.pdf"_s},
         u"'/nada/x.pdf': arquivo ou pasta inexistente."},
        {"garbage", "\xFF[[=\n\x01", {}, {u"--salvar"_s, u"/x.pdf"_s}, u"não descreve nenhuma coluna"},
        {"strangers",
         "[INFORMATION]\nCount=1\n[FIELD_00]\nFieldName=OUTRO\n",
         {},
         {u"--salvar"_s, u"/x.pdf"_s},
         u"não pertencem um ao outro: falta o campo 'OUTRO'"},
        {"no rows", {}, "FICHROWX", {u"--salvar"_s, u"/x.pdf"_s}, u"não contém registros"},
    };
    const QByteArray rows = ReadWholeFile(Em(u"repvw.dat"_s));
    for (const auto& caso : casos) {
        WriteWholeFile(Em(u"repvwi.dat"_s), caso.Definicao.isEmpty() ? kDefinicao : caso.Definicao);
        WriteWholeFile(Em(u"repvw.dat"_s), caso.Linhas.isEmpty() ? rows : caso.Linhas);
        const UnicodeString said = Programa(caso.Argumentos);
        EXPECT_TRUE(said.contains(QString::fromUtf16(caso.Frase))) << caso.Caso << ' ' << qPrintable(said);
    }
}

TEST_F(GridReport, NothingHalfWrittenStays) {
    const TRelatorio report = Ler();
    const TTabela table(report);
    const TPaginas pages(report, table, PapelA4(false), kQuando);
    const QStringList before = Arquivos();
    const auto restore = qScopeGuard([] { SetFileFailure(nullptr); });
    for (const UnicodeString& ending : {u"pdf"_s, u"csv"_s, u"xlsx"_s}) {
        SCOPED_TRACE(ending.toStdString());
        const UnicodeString file = Em(u"r."_s + ending);
        if (ending != u"csv") {
            EXPECT_THROW(Exportar(report, pages, file, [](auto, auto) { return false; }), EAbort);
        }
        SetFileFailure([](auto&, TFileOperation operation) {
            return operation == foWrite ? std::optional(ENOSPC) : std::nullopt;
        });
        EXPECT_THROW(Exportar(report, pages, file), EInOutError);
        SetFileFailure(nullptr);
        EXPECT_EQ(Arquivos(), before);
    }
}

TEST_F(GridReport, PreviewTurnsPagesPrintsAndSaves) {
    TRelatorio report = Ler();
    const TTabela table(report);
    TJanela window(report, table);
    const UnicodeString printed = Em(u"i.pdf"_s), saved = Em(u"s.csv"_s);
    window.OnPerguntarImpressora = [&](QPrinter& printer, int pages) {
        EXPECT_EQ(pages, 5);
        printer.setOutputFileName(printed);
        printer.setFromTo(2, 2);
        return true;
    };
    window.OnPerguntarArquivo = [&](const UnicodeString& proposal) {
        EXPECT_EQ(proposal, u"Preços à vista.pdf"_s);
        return saved;
    };
    window.show();
    window.activateWindow();
    ASSERT_TRUE(Until([&] { return window.isActiveWindow(); }));
    QFile::remove(Em(u"repvw.dat"_s));  // the report keeps what it has opened
    const auto key = [&](Qt::Key code, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(window.windowHandle(), code, with);
    };
    key(Qt::Key_End);
    EXPECT_EQ(window.Pagina(), 1);
    key(Qt::Key_PageUp);
    EXPECT_EQ(window.Pagina(), 0);
    key(Qt::Key_R, Qt::ControlModifier);
    key(Qt::Key_P, Qt::ControlModifier);
    const UnicodeString text = TextoDoPdf(printed);
    EXPECT_TRUE(text.contains(u"Página 2 de 5"_s)) << qPrintable(text);
    EXPECT_FALSE(text.contains(u"Página 1 de 5"_s));
    const QByteArray paper = ReadWholeFile(printed);
    SetFileFailure([](auto&, auto) { return std::optional(ENOSPC); });
    ExpectBox(u"Não foi possível gravar o arquivo '%1': disco cheio."_s.arg(printed), u"Erro"_s,
              MB_ICONERROR);
    key(Qt::Key_P, Qt::ControlModifier);
    SetFileFailure(nullptr);
    EXPECT_EQ(ReadWholeFile(printed), paper);
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(ReadWholeFile(saved).count('\n'), kLinhas + 1);
    window.OnPerguntarArquivo = [](const UnicodeString&) { return u"/nada/s.csv"_s; };
    ExpectBox(u"Não foi possível gravar o arquivo '/nada/s.csv': arquivo ou pasta inexistente."_s, u"Erro"_s,
              MB_ICONERROR);
    key(Qt::Key_S, Qt::ControlModifier);
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
