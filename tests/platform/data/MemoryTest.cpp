// What many queries leave behind: nothing.
#include <malloc.h>
#include <unistd.h>
#include <QFile>
#include "tests/platform/data/TestDatabase.h"

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kCounted = false;  // the sanitizer keeps what was freed
#else
constexpr bool kCounted = true;
#endif

constexpr int kWarmUp = 500, kQueries = 10000;
// Less than the smallest block for each query of one kind.
constexpr int kKinds = 5, kSmallestBlock = 32;
constexpr qint64 kHeapSlack = qint64{kSmallestBlock} * kQueries / kKinds / 2;
constexpr qint64 kPagesSlack = qint64{1} << 20;

qint64 HeapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}

// The client library has pools of its own.
qint64 PagesHeld() {
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

class Memory : public DataTest {
  protected:
    // The ways a query is used, one after the other.
    void UseOne(int i) {
        const UnicodeString number = UnicodeString::number(i);
        switch (i % kKinds) {
            case 0: return UseRows(u"SELECT N, T FROM NUMEROS"_s);
            case 1: return UseRows(u"SELECT N, T FROM NUMEROS WHERE N <> "_s + number);
            case 2: return UseRows(u"SELECT ID, NM, OBS FROM CLIENTE WHERE ID <> %1 ORDER BY 1"_s.arg(-i));
            case 3: return UseParam(i);
            default: return Fail(number);
        }
    }
    void UseRows(const UnicodeString& sql) {
        TFDQuery* query = Open(sql);
        query->MoveBy(100);
        query->First();
        query->Locate(query->Fields()[1]->FieldName(), u"n7"_s, loPartialKey | loCaseInsensitive);
        for (TField* field : query->Fields()) field->DisplayText();
        query->Edit();
        query->Fields()[1]->SetAsString(u"outro"_s);
        query->Cancel();
        query->Close();
        query->Free();
    }
    void UseParam(int i) {
        TFDQuery* query = Query(u"SELECT * FROM CLIENTE WHERE NM STARTING WITH :NM OR ID = :ID"_s);
        query->Prepare();
        query->ParamByName(u"NM"_s)->SetAsString(u"B"_s);
        query->ParamByName(u"ID"_s)->SetAsInteger(i % 3);
        query->Open();
        query->Refresh();
        query->Free();
    }
    void Fail(const UnicodeString& number) {
        TFDQuery* query = Query(u"SELECT 10 / (N - 70 - N + 70) FROM NUMEROS WHERE N <> "_s + number);
        EXPECT_THROW(query->Open(), EFDError);
        query->SQL()->SetText(u"SELECT X%1 FROM NUMEROS"_s.arg(number));
        EXPECT_THROW(query->Open(), EFDError);
        query->Free();
    }
};

TEST_F(Memory, TenThousandQueriesLeaveNothingBehind) {
    for (int i = 0; i < kWarmUp; ++i) UseOne(i);
    const UnicodeString statements = Scalar(u"SELECT COUNT(*) FROM MON$STATEMENTS"_s);
    const qint64 heap = HeapInUse(), pages = PagesHeld();
    for (int i = kWarmUp; i < kWarmUp + kQueries; ++i) UseOne(i);
    const qint64 heapGrown = HeapInUse() - heap, pagesGrown = PagesHeld() - pages;
    EXPECT_TRUE(!kCounted || heapGrown < kHeapSlack) << heapGrown;
    EXPECT_TRUE(!kCounted || pagesGrown < kPagesSlack) << pagesGrown;
    EXPECT_EQ(Scalar(u"SELECT COUNT(*) FROM MON$STATEMENTS"_s), statements);
}

}  // namespace
