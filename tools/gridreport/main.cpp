// GridReport: prints what a grid form has written beside the program.
//
//     GridReport -o5287                       opens the preview (the number names the form's module)
//     GridReport --salvar saida.pdf           writes a file without a screen; .pdf, .csv or .xlsx, repeatable
//     GridReport --pasta DIR                  where repvw.dat and repvwi.dat are; else the program's folder
//     GridReport --retrato, --paisagem        another orientation than the definition's
//
// Exit code 0; 1 with a message when something failed.
#include <malloc.h>
#include <unistd.h>
#include <cstdio>
#include <optional>
#include <QApplication>
#include <QCommandLineParser>

#include "platform/rtl/Exceptions.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "tools/gridreport/Exporta.h"
#include "tools/gridreport/Janela.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Every printed page takes memory and gives it back: kept here, it need not be asked for again.
constexpr int kMemoriaGuardada = 64 << 20;

struct TPedido {
    UnicodeString Pasta;
    QStringList Arquivos;
    bool Retrato = false;
    bool Paisagem = false;
};

// "-o528" and its number is one argument, which no parser of options knows.
QStringList SemModulo(QStringList arguments) {
    arguments.removeIf([](const QString& argument) { return argument.startsWith(u"-o528"); });
    return arguments;
}

TPedido LerPedido(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({u"pasta"_s, u"Pasta dos arquivos a imprimir."_s, u"pasta"_s, ProgramFolder()});
    parser.addOption({u"salvar"_s, u"Grava o relatório e termina (.pdf, .csv ou .xlsx)."_s, u"arquivo"_s});
    parser.addOption({u"retrato"_s, u"Página em pé."_s});
    parser.addOption({u"paisagem"_s, u"Página deitada."_s});
    parser.process(SemModulo(arguments));
    return {parser.value(u"pasta"_s), parser.values(u"salvar"_s), parser.isSet(u"retrato"_s),
            parser.isSet(u"paisagem"_s)};
}

// On a terminal only: a file of messages wants none of it.
bool NoTerminal(int64_t done, int64_t total) {
    static int64_t shown = -1;
    const int64_t percent = done * 100 / std::max<int64_t>(1, total);
    if (isatty(STDERR_FILENO) && std::exchange(shown, percent) != percent)
        fprintf(stderr, "\r%3d %%\r", int(percent));
    return true;
}

void Salvar(const TRelatorio& relatorio, const QStringList& arquivos) {
    const TTabela tabela(relatorio);
    const TPaginas paginas(relatorio, tabela, PapelA4(relatorio.Paisagem), Now());
    for (const QString& arquivo : arquivos) {
        Exportar(relatorio, paginas, arquivo, NoTerminal);
        fprintf(stdout, "%s\n", qPrintable(arquivo));
    }
}

int Mostrar(TRelatorio& relatorio) {
    std::optional<TTabela> tabela;
    const bool read = ComBarra(nullptr, u"Preparando…"_s,
                               [&](const TAndamento& andamento) { tabela.emplace(relatorio, andamento); });
    if (!read) return 1;
    TJanela janela(relatorio, *tabela);
    janela.show();
    return QApplication::exec();
}

int Executar(const TPedido& pedido, bool semTela) {
    if (semTela && pedido.Arquivos.isEmpty())
        throw Exception(u"Não há tela gráfica para mostrar o relatório. Use --salvar ARQUIVO."_s);
    TRelatorio relatorio =
        LerDefinicao(JoinPath(pedido.Pasta, u"repvwi.dat"), JoinPath(pedido.Pasta, u"repvw.dat"));
    if (pedido.Retrato || pedido.Paisagem) relatorio.Paisagem = pedido.Paisagem;
    if (!pedido.Arquivos.isEmpty()) {
        Salvar(relatorio, pedido.Arquivos);
        return 0;
    }
    return Mostrar(relatorio);
}

bool SemTela(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return true;
    for (int i = 1; i < argc; ++i) {
        if (qstrncmp(argv[i], "--salvar", 8) == 0) return true;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    mallopt(M_TRIM_THRESHOLD, kMemoriaGuardada);
    const bool semTela = SemTela(argc, argv);
    if (semTela) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ApplyLooks(app);
    TApplication application;
    try {
        return Executar(LerPedido(QApplication::arguments()), semTela);
    } catch (const Exception& e) {
        fprintf(stderr, "%s\n", e.what());
        if (!semTela) application.MessageBox(e.Message, u"Erro"_s, MB_ICONERROR);
        return 1;
    }
}
