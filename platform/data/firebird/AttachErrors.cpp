#include "platform/data/firebird/AttachErrors.h"

#include <QFileInfo>
#include "platform/data/firebird/FbApi.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

struct Cause {
    int64_t Code;
    QStringView Text;
};

// The client says of a file that does not exist and of one it may not read the same; those are told apart on
// the disk.
constexpr Cause kCauses[] = {
    {isc_bad_db_format, u"o arquivo não é um banco de dados Firebird"},
    {isc_wrong_ods, u"o arquivo é de outra versão do Firebird"},
    {isc_already_opened, u"já está aberto por outro programa"},
    {isc_no_priv, u"sem permissão de leitura e gravação"},
    {isc_conf_access_denied, u"o servidor não permite o acesso a este arquivo"},
    {isc_unavailable, u"o cliente Firebird não está instalado por completo"},
    {isc_charset_not_found, u"conjunto de caracteres desconhecido"},
    {isc_sys_request, u"o sistema recusou uma operação"},
    {isc_io_error, u"erro de leitura ou gravação"},
};

UnicodeString FileCause(const EFDError& error, const AttachSettings& settings) {
    const QFileInfo file(settings.Database);
    if (!settings.Local) return error.Has(isc_io_open_err) ? u"arquivo não encontrado"_s : UnicodeString();
    if (file.isDir()) return u"é uma pasta, não um arquivo"_s;
    if (!file.exists()) return u"arquivo não encontrado"_s;
    if (error.Has(isc_io_open_err)) return u"sem permissão de leitura"_s;
    return error.Has(isc_io_error) && !error.Has(isc_already_opened) ? u"o arquivo está vazio ou incompleto"_s
                                                                     : UnicodeString();
}

UnicodeString NewFileCause(const AttachSettings& settings) {
    const QFileInfo file(settings.Database);
    if (!settings.Local) return {};
    if (file.exists()) return u"o arquivo já existe"_s;
    return QFileInfo(file.path()).isDir() ? u"sem permissão de gravação na pasta"_s : u"a pasta não existe"_s;
}

UnicodeString UnavailableCause(const AttachSettings& settings, bool create) {
    if (!settings.Local) return u"o servidor não conhece este caminho"_s;
    return create || QFileInfo::exists(settings.Database) ? UnicodeString() : u"arquivo não encontrado"_s;
}

UnicodeString CauseOf(const EFDError& error) {
    for (const Cause& cause : kCauses) {
        if (error.Has(cause.Code)) return cause.Text.toString();
    }
    return {};
}

bool IsServers(const EFDError& error) {
    return error.Has(isc_network_error) || error.Has(isc_net_connect_err) || error.Has(isc_connect_reject) ||
           !error.ConnectionUsable;
}

UnicodeString MessageOf(const EFDError& error, const AttachSettings& settings, bool create) {
    if (error.Has(isc_login)) return error.Message;
    if (IsServers(error) && !settings.Local) {
        return u"Servidor não encontrado ou sem resposta (%1)."_s.arg(settings.Server);
    }
    UnicodeString cause;
    if (error.Has(isc_io_error)) cause = create ? NewFileCause(settings) : FileCause(error, settings);
    if (error.Has(isc_unavailable)) cause = UnavailableCause(settings, create);
    if (cause.isEmpty()) cause = CauseOf(error);
    if (cause.isEmpty()) cause = error.ServerText;
    const UnicodeString action = create ? u"criar"_s : u"abrir"_s;
    return u"Não foi possível %1 o banco de dados %2: %3."_s.arg(action, settings.Database, cause);
}

}  // namespace

EFDError AttachErrorOf(const EFDError& error, const AttachSettings& settings, bool create) {
    EFDError result = error.Saying(MessageOf(error, settings, create));
    result.ConnectionUsable = false;
    return result;
}

}  // namespace fichario
