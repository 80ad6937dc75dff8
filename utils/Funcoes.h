// The library of free functions: texts, lists, keys, dates, rounding and document numbers.
//
//     ExplodeStr(u"a;b;"_s, u';')                         // {"a", "b"}
//     FillCharL(u"7"_s, 3, u"0"_s)                        // "007"
//     FixDate(u"31/02/2024"_s)                            // 29/02/2024
//
// The functions stand in headers by topic; a host includes this one.
#pragma once
#include "utils/funcoes/Datas.h"
#include "utils/funcoes/Dinheiro.h"
#include "utils/funcoes/Documentos.h"
#include "utils/funcoes/Espera.h"
#include "utils/funcoes/Extenso.h"
#include "utils/funcoes/Inscricao.h"
#include "utils/funcoes/Listas.h"
#include "utils/funcoes/Log.h"
#include "utils/funcoes/Senhas.h"
#include "utils/funcoes/Sistema.h"
#include "utils/funcoes/Teclas.h"
#include "utils/funcoes/Texto.h"
#include "utils/funcoes/TextoAnsi.h"
