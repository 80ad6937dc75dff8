// A search that takes the server minutes: the hourglass shows, the screen paints, Escape ends it, and the
// form is as good as before.
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTimer>

#include "platform/data/firebird/ClientCall.h"
#include "platform/data/Query.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"
#include "tests/demo/Balcao.h"

namespace {

class Espera : public Balcao {
  protected:
    TFDQuery* Records() { return dynamic_cast<TFDQuery*>(Lista()->MainDS->DataSet()); }
    void SetSlow(bool slow) {
        const UnicodeString wait = u", (SELECT COUNT(*) FROM CLIENTE A, CLIENTE B, CLIENTE C) ESPERA"_s;
        UnicodeString sql = Records()->SQL()->Text();
        if (slow) {
            sql.replace(QRegularExpression(u"TF_DEL(\\s+FROM)"_s), u"TF_DEL"_s + wait + u"\\1"_s);
            ASSERT_TRUE(sql.contains(wait));
        } else {
            sql.remove(wait);
        }
        Records()->SQL()->SetText(sql);
    }
};

TEST_F(Espera, EscapeEndsASlowSearchAndTheNextOneWorks) {
    OpenList('C');
    SetSlow(true);
    bool hourglass = false, busy = false;
    int painted = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (!Application->Waiting()) return;
        const QCursor* cursor = QGuiApplication::overrideCursor();
        hourglass = hourglass || (cursor && cursor->shape() == Qt::WaitCursor);
        busy = busy || TDataSet::Busy();
        Main->Widget()->window()->grab();
        if (++painted == 3) Press(VK_ESCAPE);
    });
    look.start(100);
    Press(VK_F3);
    ExpectBox(u"A operação foi cancelada."_s, u"Erro"_s, 16);
    TypeText(u"a"_s);
    EXPECT_TRUE(Until([&] { return painted >= 3 && !Application->Waiting(); }));
    look.stop();
    Settle();
    EXPECT_TRUE(hourglass && busy);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(Lista()->LookingForRecords);
    SetSlow(false);
    Search(u"mar"_s);
    EXPECT_TRUE(Current(u"NM_CLI"_s).startsWith(u"mar"_s, Qt::CaseInsensitive));
}

TEST_F(Espera, AConnectionThatStaysLostIsToldAndTheNextSearchConnectsAgain) {
    OpenList('C');
    const UnicodeString lost = u"A conexão com o servidor foi perdida."_s;
    int cuts = 2;  // once more than it is tried again by itself
    fichario::SetClientCallHook([&](fichario::CallKind kind) {
        if (kind != fichario::CallKind::Execute || cuts == 0) return;
        --cuts;
        EFDError error(lost, {335544726});
        error.ConnectionUsable = false;
        throw error;
    });
    Press(VK_F3);
    ExpectBox(lost, u"Erro"_s, 16);
    TypeText(u"jo"_s);
    EXPECT_TRUE(Until([&] { return cuts == 0 && !Lista()->LookingForRecords; }));
    EXPECT_EQ(Lista()->EdtPesquisa->Text(), u"jo");
    Search(u"mar"_s);
    EXPECT_TRUE(Current(u"NM_CLI"_s).startsWith(u"mar"_s, Qt::CaseInsensitive));
    fichario::SetClientCallHook(nullptr);
}

}  // namespace
