// The window that asks for a CNPJ. Enter looks up, Escape gives up; what goes wrong stands in the window and
// keeps the number.
#pragma once

#include <functional>
#include <QDialog>

#include "platform/rtl/Types.h"

class QLabel;
class QLineEdit;
class QPushButton;

class TJanela : public QDialog {
  public:
    // `buscar` throws an Exception with a sentence for the user.
    explicit TJanela(std::function<void(const UnicodeString& cnpj)> buscar);

  private:
    void Buscar();

    std::function<void(const UnicodeString&)> FBuscar;
    QLineEdit* FNumero;
    QLabel* FAviso;
    QPushButton* FBotao;
};
