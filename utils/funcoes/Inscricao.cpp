#include "utils/funcoes/Inscricao.h"

#include <dlfcn.h>
#include <mutex>
#include <QFile>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using TConsiste = int32_t (*)(const char* number, const char* uf);

const UnicodeString kFile = u"libDllInscE32.so"_s;
constexpr const char* kFunction = "ConsisteInscricaoEstadual";

// The library and its function, kept for the life of the process.
void* LibHandle = nullptr;
TConsiste InsEst = nullptr;

void* Load() {
    const UnicodeString folders[] = {ProgramFolder(), JoinPath(ProgramFolder(), u"../lib/fichario")};
    for (const UnicodeString& folder : folders) {
        const QByteArray path = QFile::encodeName(JoinPath(folder, kFile));
        if (void* handle = dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL)) return handle;
    }
    return nullptr;
}

TConsiste Validator() {
    static std::mutex guard;
    const std::lock_guard lock(guard);
    if (!LibHandle) {
        LibHandle = Load();
        if (LibHandle) InsEst = reinterpret_cast<TConsiste>(dlsym(LibHandle, kFunction));
    }
    if (!InsEst) throw Exception(u"Biblioteca \"DllInscE32.dll\" não encontrada."_s);
    return InsEst;
}

}  // namespace

bool InscEstadual(const UnicodeString& number, const UnicodeString& uf) {
    const TConsiste validator = Validator();
    if (number == u"ISENTO") return true;
    return validator(ToAnsi(number).constData(), ToAnsi(uf).constData()) == 0;
}
