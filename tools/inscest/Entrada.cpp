// The library's one function, as programs that load it know it.
#include <cstdint>

#include "tools/inscest/Validador.h"

// 0 for a valid number, 1 for any other; both texts end with a zero byte.
extern "C" __attribute__((visibility("default"))) int32_t ConsisteInscricaoEstadual(const char* number,
                                                                                    const char* uf) {
    return number && uf && InscricaoValida(number, uf) ? 0 : 1;
}
