#include "utils/UImpParticipante.h"

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/IniFile.h"
#include "platform/system/NamedMutex.h"
#include "platform/system/Paths.h"
#include "platform/system/UserInterface.h"
#include "utils/funcoes/Espera.h"
#include "utils/funcoes/Sistema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCnpjLength = 14;
constexpr int kLooks = 10;
constexpr int kBetweenLooks = 1000;  // milliseconds
constexpr int kPoll = 1;
const UnicodeString kSection = u"CNPJ"_s;
const UnicodeString kUsed = u"Usado"_s;
const UnicodeString kProgram = u"PartImport.exe"_s;
const UnicodeString kSwitch = u"-impprt"_s;
const UnicodeString kLock = u"VREN_IMPART"_s;

UnicodeString Tool() {
    return JoinPath(ProgramFolder(), kProgram);
}

// OpenExecAndWait only says that it failed; the second start says why.
void RunWith(const UnicodeString& cnpj) {
    const UnicodeString parameters = kSwitch + u" "_s + cnpj;
    if (OpenExecAndWait(Tool(), parameters, SW_SHOWNORMAL) < 0) OpenExec(Tool(), parameters);
}

void WaitForAppearance() {
    int pid = 0;
    for (int look = 0; look < kLooks; ++look) {
        Wait(kBetweenLooks);
        if (FindProcess(kProgram, pid)) return;
    }
    throw Exception(
        u"Não foi possível abrir o módulo de busca de dados. Por favor entre em contato com o suporte."_s);
}

void WaitForEnd() {
    TNamedMutex mutex(kLock);
    while (!mutex.TryLock()) Wait(kPoll);
    mutex.Unlock();
}

void RunForTyping() {
    OpenExec(Tool(), kSwitch);
    WaitForAppearance();
    WaitForEnd();
}

}  // namespace

bool GetParticipante(const UnicodeString& CNPJ, UnicodeString& outCNPJ, UnicodeString& Razao,
                     UnicodeString& Fantasia, UnicodeString& Endereco, UnicodeString& Numero,
                     UnicodeString& Complemento, UnicodeString& CEP, UnicodeString& Bairro,
                     UnicodeString& Cidade, UnicodeString& Estado) {
    if (!CNPJ.isEmpty() && CNPJ.size() != kCnpjLength) {
        UserInterface().MessageBox(
            u"Para a busca dos dados online informe a quantidade exata de digitos do CNPJ."_s, u"Erro..."_s,
            MB_ICONERROR);
        return false;
    }
    UserInterface().EnableMainForm(false);
    TIniFile file(JoinPath(ProgramFolder(), u"Config.ini"));
    file.WriteBool(kSection, kUsed, false);
    if (CNPJ.isEmpty()) {
        RunForTyping();
    } else {
        RunWith(CNPJ);
    }
    UserInterface().EnableMainForm(true);
    UserInterface().BringToFront();
    if (!file.ReadBool(kSection, kUsed, false)) return false;
    const std::pair<const char16_t*, UnicodeString*> outputs[] = {
        {u"CNPJ", &outCNPJ},      {u"Razao", &Razao},   {u"Fantasia", &Fantasia},
        {u"Endereco", &Endereco}, {u"Numero", &Numero}, {u"Complemento", &Complemento},
        {u"CEP", &CEP},           {u"Bairro", &Bairro}, {u"Cidade", &Cidade},
        {u"Estado", &Estado}};
    for (const auto& [key, output] : outputs) *output = file.ReadString(kSection, key, {});
    return true;
}
