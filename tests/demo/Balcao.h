// A clerk's counter for the journeys: the program on a database of its own, a second connection that sees
// what was really stored, and the strokes that every journey makes.
#pragma once

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "demo/FrmPrincipal.h"
#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

class Balcao : public testing::Test {
  protected:
    static constexpr int kPergunta = 36;
    static constexpr int kAviso = 48;

    void SetUp() override;
    void TearDown() override;

    // The open view; the form that was opened from it, null when none is.
    TFrmViz_Master* Lista() const;
    TFrmCad_Master* Ficha() const;
    bool FichaClosed() {
        return Until([&] { return !Ficha(); });
    }
    UnicodeString Current(const UnicodeString& field) const;
    // What the database holds, as seen by somebody else.
    UnicodeString Stored(const UnicodeString& sql) { return Second->ExecSQLScalar(sql).ToText(); }

    // Opens a view from the menu Cadastros by its letter, and waits for its records.
    void OpenList(int letter);
    // Types over what a control holds; then goes on with Enter.
    void Fill(const UnicodeString& text);
    void Search(const UnicodeString& text);
    // F12 answered with `text` in a box of warning.
    void Refused(const UnicodeString& text);
    void Confirm();

    QTemporaryDir Folder;
    TDM_Comercial* Data = new TDM_Comercial(nullptr);
    TFDConnection* Second = new TFDConnection(nullptr);
    TFrmPrincipal* Main = nullptr;
};
