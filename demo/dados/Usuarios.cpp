#include "demo/dados/Usuarios.h"

#include <QScopeGuard>
#include <QStringList>

#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "utils/Funcoes.h"
#include "utils/MD5.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Hears each row of `sql`.
void ParaCada(TFDCustomConnection& connection, const UnicodeString& sql,
              const std::function<void(const TDataSet& linha)>& ouvir) {
    auto* query = new TFDQuery(nullptr);
    const auto fim = qScopeGuard([query] { query->Free(); });
    query->SetConnection(&connection);
    query->SQL()->SetText(sql);
    for (query->Open(); !query->Eof(); query->Next()) ouvir(*query);
}

UnicodeString Embaralhada(const UnicodeString& senha) {
    return UnicodeString::fromLatin1(MD5DigestToStr(MD5String(senha.toUtf8())));
}

}  // namespace

std::set<UnicodeString> TUsuario::Em(const UnicodeString& modulo) const {
    std::set<UnicodeString> direitos;
    for (const UnicodeString& direito : ExplodeStr(Direitos, u';')) {
        if (direito.startsWith(modulo + u'.')) direitos.insert(direito.mid(modulo.size() + 1));
    }
    return direitos;
}

TStringArray NomesDosUsuarios(TFDCustomConnection& connection) {
    TStringArray nomes;
    ParaCada(connection, u"SELECT NM_USU FROM USUARIO ORDER BY NM_USU"_s,
             [&](const TDataSet& usuario) { nomes.push_back(usuario.FieldByName(u"NM_USU"_s)->AsString()); });
    return nomes;
}

std::optional<TUsuario> Entrar(TFDCustomConnection& connection, const UnicodeString& nome,
                               const UnicodeString& senha) {
    std::optional<TUsuario> entrou;
    ParaCada(connection, u"SELECT NM_USU, SENHA, DIREITOS FROM USUARIO"_s, [&](const TDataSet& usuario) {
        const UnicodeString este = usuario.FieldByName(u"NM_USU"_s)->AsString();
        if (este != nome || usuario.FieldByName(u"SENHA"_s)->AsString() != Embaralhada(senha)) return;
        entrou = TUsuario{este, usuario.FieldByName(u"DIREITOS"_s)->AsString()};
    });
    return entrou;
}
