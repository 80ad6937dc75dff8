#include "platform/data/firebird/FbErrors.h"

#include <algorithm>
#include "platform/data/firebird/FbApi.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

// A code with the texts that the server gave behind it.
struct ErrorItem {
    int64_t Code;
    TStringArray Texts;
};

struct Sentence {
    int64_t Code;
    QStringView Text;
};

constexpr QStringView kLost =
    u"A conexão com o servidor foi perdida. Os dados digitados foram mantidos; tente novamente.";
constexpr QStringView kNoServer = u"Servidor não encontrado ou sem resposta.";
constexpr QStringView kLocked = u"Este registro está sendo alterado por outro usuário. Tente novamente.";
constexpr QStringView kDuplicate = u"Já existe um registro com este valor.";

// In the order in which they tell more: a vector often holds a general code first and the cause behind it.
constexpr Sentence kSentences[] = {
    {isc_net_read_err, kLost},
    {isc_net_write_err, kLost},
    {isc_att_shutdown, kLost},
    {isc_bad_db_handle, kLost},
    {isc_lost_db_connection, kLost},
    {isc_cancelled, u"A operação foi cancelada."},
    {isc_already_opened, u"O banco de dados já está aberto por outro programa."},
    {isc_network_error, kNoServer},
    {isc_net_connect_err, kNoServer},
    {isc_connect_reject, kNoServer},
    {isc_login, u"Usuário ou senha inválidos."},
    {isc_update_conflict, kLocked},
    {isc_read_conflict, kLocked},
    {isc_lock_conflict, kLocked},
    {isc_lock_timeout, kLocked},
    {isc_unique_key_violation, kDuplicate},
    {isc_no_dup, kDuplicate},
    {isc_foreign_key_references_present, u"Registro em uso por outro cadastro."},
    {isc_foreign_key_target_doesnt_exist, u"O registro relacionado não existe."},
    {isc_foreign_key, u"Registro em uso por outro cadastro."},
    {isc_not_valid, u"Preencha o campo obrigatório."},
    {isc_string_truncation, u"Texto maior que o permitido."},
    {isc_transliteration_failed, u"Caractere não permitido."},
    {isc_no_priv, u"Você não tem permissão para esta operação."},
};

std::vector<ErrorItem> ItemsOf(const intptr_t* vector, TextEncoding encoding) {
    std::vector<ErrorItem> items;
    while (*vector != isc_arg_end) {
        const intptr_t kind = vector[0];
        if (kind == isc_arg_gds) items.push_back({static_cast<int64_t>(vector[1]), {}});
        if (kind == isc_arg_string && !items.empty()) {
            items.back().Texts.push_back(DecodeText(encoding, reinterpret_cast<const char*>(vector[1])));
        }
        vector += kind == isc_arg_cstring ? 3 : 2;
    }
    return items;
}

const ErrorItem* Find(const std::vector<ErrorItem>& items, int64_t code) {
    for (const ErrorItem& item : items) {
        if (item.Code == code) return &item;
    }
    return nullptr;
}

UnicodeString SentenceOf(const std::vector<ErrorItem>& items) {
    for (const Sentence& sentence : kSentences) {
        if (Find(items, sentence.Code)) return sentence.Text.toString();
    }
    return {};
}

// The text that a trigger or procedure raised for the user: the exception's name stands before it, the place
// behind.
UnicodeString RaisedText(const std::vector<ErrorItem>& items) {
    const ErrorItem* raised = Find(items, isc_except);
    if (!raised) return {};
    UnicodeString text;
    for (size_t i = static_cast<size_t>(raised - items.data()) + 1; i < items.size(); ++i) {
        if (items[i].Code == isc_stack_trace) break;
        if (!items[i].Texts.empty()) text = items[i].Texts.back();
    }
    return text;
}

UnicodeString ConstraintOf(const std::vector<ErrorItem>& items) {
    for (const int64_t code :
         {isc_unique_key_violation, isc_no_dup, isc_foreign_key, isc_check_constraint, isc_not_valid}) {
        const ErrorItem* item = Find(items, code);
        if (item && !item->Texts.empty()) return item->Texts.front();
    }
    return {};
}

bool IsLost(const std::vector<ErrorItem>& items) {
    return std::any_of(std::begin(kSentences), std::end(kSentences), [&](const Sentence& sentence) {
        return sentence.Text == kLost && Find(items, sentence.Code);
    });
}

UnicodeString ServerTextOf(Firebird::IStatus& status, TextEncoding encoding) {
    char buffer[4096];
    const unsigned length =
        Firebird::fb_get_master_interface()->getUtilInterface()->formatStatus(buffer, sizeof buffer, &status);
    return DecodeText(encoding, QByteArrayView(buffer, length));
}

EFDError Assemble(const std::vector<ErrorItem>& items, const UnicodeString& serverText) {
    std::vector<int64_t> codes;
    for (const ErrorItem& item : items) codes.push_back(item.Code);
    UnicodeString message = RaisedText(items);
    if (message.isEmpty()) message = SentenceOf(items);
    if (message.isEmpty()) message = u"Erro no banco de dados: "_s + serverText;
    EFDError error(message, codes);
    error.ServerText = serverText;
    error.Constraint = ConstraintOf(items);
    error.ConnectionUsable = !IsLost(items);
    return error;
}

}  // namespace

EFDError ErrorOf(Firebird::IStatus& status, TextEncoding encoding) {
    EFDError error = Assemble(ItemsOf(status.getErrors(), encoding), ServerTextOf(status, encoding));
    char state[6] = {};
    fb_sqlstate(state, status.getErrors());
    error.SqlState = UnicodeString::fromLatin1(state);
    return error;
}

EFDError ErrorOfCodes(std::vector<int64_t> codes) {
    std::vector<ErrorItem> items;
    for (const int64_t code : codes) items.push_back({code, {}});
    return Assemble(items, UnicodeString());
}

}  // namespace fichario
