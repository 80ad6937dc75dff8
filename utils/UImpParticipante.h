// A company's registration data by its CNPJ, fetched by the companion program PartImport.
//
//     UnicodeString cnpj, razao, fantasia, endereco, numero, complemento, cep, bairro, cidade, estado;
//     try {
//         if (GetParticipante(typed, cnpj, razao, fantasia, endereco, numero, complemento, cep,
//                             bairro, cidade, estado)) …
//     } catch (...) { Application->MainForm()->SetEnabled(true); throw; }
//
// The program is started with "-impprt" and the CNPJ, or without one when the user is to type it there, and
// answers in the section CNPJ of Config.ini beside the program: Usado (1 when it has delivered), CNPJ, Razao,
// Fantasia, Endereco, Numero, Complemento, CEP, Bairro, Cidade, Estado. While it runs it holds the named lock
// VREN_IMPART.
#pragma once

#include "platform/rtl/Types.h"

// `CNPJ` has 14 characters or is empty (the user types it in the program); another length shows a message box
// and answers false. True when the program has delivered: then the ten texts are filled; else they are
// unchanged. The main form takes no input meanwhile. EOSError when the program cannot be started, Exception
// when it does not appear within ten seconds: then the main form is still disabled, and whoever handles the
// exception enables it again.
bool GetParticipante(const UnicodeString& CNPJ, UnicodeString& outCNPJ, UnicodeString& Razao,
                     UnicodeString& Fantasia, UnicodeString& Endereco, UnicodeString& Numero,
                     UnicodeString& Complemento, UnicodeString& CEP, UnicodeString& Bairro,
                     UnicodeString& Cidade, UnicodeString& Estado);
