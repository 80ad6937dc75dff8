#include "platform/data/firebird/FbErrors.h"

#include <algorithm>
#include <QList>
#include <QRegularExpression>
#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/TextEncoding.h"
#include "platform/data/Sql.h"

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
constexpr QStringView kRule = u"Os valores digitados não atendem a uma regra do cadastro.";
constexpr QStringView kBeyond = u"Número fora da faixa permitida.";
constexpr QStringView kByZero = u"Divisão por zero.";
constexpr QStringView kMoment = u"Data ou hora fora da faixa permitida.";

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
    {isc_check_constraint, kRule},
    {isc_numeric_out_of_range, kBeyond},
    {isc_exception_integer_overflow, kBeyond},
    {isc_exception_float_overflow, kBeyond},
    {isc_exception_integer_divide_by_zero, kByZero},
    {isc_exception_float_divide_by_zero, kByZero},
    {isc_date_range_exceeded, kMoment},
    {isc_time_range_exceeded, kMoment},
    {isc_datetime_range_exceeded, kMoment},
    {isc_convert_error, u"Valor inválido para o tipo do campo."},
    {isc_no_priv, u"Você não tem permissão para esta operação."},
};

std::vector<ErrorItem> ItemsOf(const intptr_t* vector) {
    std::vector<ErrorItem> items;
    while (*vector != isc_arg_end) {
        const intptr_t kind = vector[0];
        if (kind == isc_arg_gds) items.push_back({static_cast<int64_t>(vector[1]), {}});
        if (kind == isc_arg_string && !items.empty()) {
            items.back().Texts.push_back(DecodeName(reinterpret_cast<const char*>(vector[1])));
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
    const ErrorItem* refused = Find(items, isc_not_valid);
    if (refused && !refused->Texts.empty() && refused->Texts.back() != u"*** null ***")
        return kRule.toString();
    for (const Sentence& sentence : kSentences) {
        if (Find(items, sentence.Code)) return sentence.Text.toString();
    }
    return {};
}

// The text that a trigger or procedure raised for the user: the exception's name stands before it, behind
// it the values that were filled in and the place.
UnicodeString RaisedText(const std::vector<ErrorItem>& items) {
    const ErrorItem* raised = Find(items, isc_except);
    if (!raised) return {};
    UnicodeString text;
    for (size_t i = static_cast<size_t>(raised - items.data()) + 1; i < items.size(); ++i) {
        if (items[i].Code == isc_stack_trace) break;
        if (!items[i].Texts.empty()) text = items[i].Texts.front();
    }
    return text;
}

// The constraint and, where it is told, its table.
void TakeConstraint(const std::vector<ErrorItem>& items, EFDError& error) {
    for (const int64_t code :
         {isc_unique_key_violation, isc_no_dup, isc_foreign_key, isc_check_constraint, isc_not_valid}) {
        const ErrorItem* item = Find(items, code);
        if (!item || item->Texts.empty()) continue;
        error.Constraint = item->Texts[0];
        if (code != isc_not_valid && item->Texts.size() > 1) error.Table = item->Texts[1];
        return;
    }
}

// The columns of the key, told as ("PEDIDO" = 1, "ITEM" = 'x'), or the one whose value is refused, told as
// "TABLE"."COLUMN".
void TakeColumns(const std::vector<ErrorItem>& items, EFDError& error) {
    static const QRegularExpression key(u"(?:^\\(|, )\"([^\"]+)\" = "_s), one(u"^\"(.+)\"\\.\"(.+)\"$"_s);
    const ErrorItem* values = Find(items, isc_idx_key_value);
    if (values && !values->Texts.empty()) {
        for (const auto& match : key.globalMatch(values->Texts[0]))
            error.Columns.push_back(match.captured(1));
    }
    if (const auto match = one.match(error.Constraint); match.hasMatch() && error.Has(isc_not_valid)) {
        error.Table = match.captured(1);
        error.Columns.push_back(match.captured(2));
    }
}

bool IsLost(const std::vector<ErrorItem>& items) {
    return std::any_of(std::begin(kSentences), std::end(kSentences), [&](const Sentence& sentence) {
        return sentence.Text == kLost && Find(items, sentence.Code);
    });
}

UnicodeString ServerTextOf(Firebird::IStatus& status) {
    char buffer[4096];
    const unsigned length =
        Firebird::fb_get_master_interface()->getUtilInterface()->formatStatus(buffer, sizeof buffer, &status);
    TStringArray lines;
    for (const QByteArray& line : QByteArray(buffer, length).split('\n')) lines.push_back(DecodeName(line));
    return Joined(lines, u"\n"_s);
}

EFDError Assemble(const std::vector<ErrorItem>& items, const UnicodeString& serverText) {
    std::vector<int64_t> codes;
    for (const ErrorItem& item : items) codes.push_back(item.Code);
    UnicodeString message = RaisedText(items);
    if (message.isEmpty()) message = SentenceOf(items);
    if (message.isEmpty()) message = u"Erro no banco de dados: "_s + serverText;
    EFDError error(message, codes);
    error.ServerText = serverText;
    TakeConstraint(items, error);
    TakeColumns(items, error);
    error.ConnectionUsable = !IsLost(items);
    return error;
}

}  // namespace

EFDError ErrorOf(Firebird::IStatus& status) {
    EFDError error = Assemble(ItemsOf(status.getErrors()), ServerTextOf(status));
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

EFDError Undecided(const EFDError& error) {
    if (error.ConnectionUsable) return error;
    return error.Saying(
        u"A conexão com o servidor foi perdida durante a gravação. Verifique se os dados foram gravados "
        u"antes de "
        u"tentar novamente."_s);
}

}  // namespace fichario
