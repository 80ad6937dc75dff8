// The sample's screens as benchmarks use them: without a screen, on databases of any number of customers.
//
//     const TBenchProgram program(argc, argv);
//     TScreen screen(Database(1000000));
//     screen.Clientes()->DBGrd->SetFocus();
#pragma once
#include <QApplication>
#include "demo/DmComercial.h"
#include "demo/FrmClientes.h"
#include "demo/FrmPrincipal.h"
#include "platform/ui/Application.h"

constexpr int kSmall = 10000;
// 1 000 000, or FICHARIO_BENCH_ROWS.
int LargeRows();

// The path of a sample database with so many customers, made at its first use; in FICHARIO_BENCH_DIR, where
// it is kept for the next run, or in a folder that goes with the program.
UnicodeString Database(int rows);

// What must live while screens do; its program folder is one of its own.
class TBenchProgram {
  public:
    TBenchProgram(int& argc, char** argv);

  private:
    struct TOffscreen {
        TOffscreen();
    };
    TOffscreen FOffscreen;
    QApplication FApp;
    TApplication FApplication;
};

struct TScreen {
    TDM_Comercial* Data;
    TFrmPrincipal* Main;

    explicit TScreen(const UnicodeString& database);
    ~TScreen();
    TScreen(const TScreen&) = delete;
    TScreen& operator=(const TScreen&) = delete;
    // Opens the customers' screen, or brings it forward.
    TFrmClientes* Clientes();
};
