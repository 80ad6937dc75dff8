#include "bench/QtPeer.h"

#ifdef FICHARIO_QT_SQL
#include <benchmark/benchmark.h>
#include <chrono>
#include <QCoreApplication>
#include <QDateTime>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlQueryModel>

using namespace Qt::Literals::StringLiterals;

namespace {

// The driver wants an application object to be there.
void NeedApplication() {
    static int count = 1;
    static char name[] = "bench_data";
    static char* arguments[] = {name, nullptr};
    if (!QCoreApplication::instance()) static QCoreApplication application(count, arguments);
}

QSqlDatabase Database(Place place, int rows) {
    const UnicodeString path = ClientesPath(place, rows);
    QSqlDatabase known = QSqlDatabase::database(path, false);
    if (known.isValid()) return known;
    ClientesOf(place, rows);
    QSqlDatabase made = QSqlDatabase::addDatabase(u"QIBASE"_s, path);
    made.setDatabaseName(path);
    made.setUserName(u"SYSDBA"_s);
    made.setPassword(u"teste"_s);
    made.setConnectOptions(u"ISC_DPB_LC_CTYPE=ISO8859_1"_s);
    if (place == Place::Server) {
        made.setHostName(u"127.0.0.1"_s);
        made.setPort(PortOfServer());
    }
    made.open();
    return made;
}

QSqlQuery Executed(Place place, int rows, const UnicodeString& sql) {
    QSqlQuery query(Database(place, rows));
    query.setForwardOnly(true);
    query.prepare(sql);
    query.exec();
    return query;
}

void Load(QSqlQueryModel& model, Place place, int rows) {
    model.setQuery(kSelectClientes, Database(place, rows));
    while (model.canFetchMore()) model.fetchMore();
}

}  // namespace

bool HasQtPeer() {
    NeedApplication();
    return QSqlDatabase::isDriverAvailable(u"QIBASE"_s);
}

void QtAllRows(Place place, int rows) {
    QSqlQueryModel model;
    Load(model, place, rows);
}

void QtFirstPage(Place place, int rows, int page) {
    QSqlQuery query = Executed(place, rows, kSelectClientes);
    while (page-- > 0 && query.next()) {
    }
}

void QtEveryValue(Place place, int rows) {
    QSqlQuery query = Executed(place, rows, kSelectClientes);
    while (query.next()) {
        for (int i = 0; i < 9; ++i) benchmark::DoNotOptimize(query.value(i));
    }
}

double QtLocateNothing(Place place, int rows) {
    QSqlQueryModel model;
    Load(model, place, rows);
    const auto start = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(
        model.match(model.index(0, 1), Qt::DisplayRole, u"maria xyzq"_s, 1, Qt::MatchStartsWith));
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void QtCount(Place place, int rows) {
    QSqlQuery query = Executed(place, rows, u"SELECT COUNT(*) FROM CLIENTE"_s);
    query.next();
    benchmark::DoNotOptimize(query.value(0));
}

void QtInsert(Place place, int rows, int firstKey, int count) {
    QSqlDatabase database = Database(place, rows);
    database.transaction();
    QSqlQuery query(database);
    query.prepare(kInsertCliente);
    for (int key = firstKey; key < firstKey + count; ++key) {
        query.bindValue(0, key);
        query.bindValue(1, novo::kNome);
        query.bindValue(2, novo::kCpf);
        query.bindValue(3, novo::kEmail);
        query.bindValue(4, novo::kUf);
        query.bindValue(5, double(novo::kSaldo) / 100);
        query.bindValue(6, QDate(2000, 1, 1));
        query.bindValue(7, QDateTime(QDate(2023, 3, 15), QTime(12, 0)));
        query.bindValue(8, novo::kAtivo);
        query.exec();
    }
    database.commit();
}

#else

bool HasQtPeer() {
    return false;
}
void QtAllRows(Place, int) {}
void QtFirstPage(Place, int, int) {}
void QtEveryValue(Place, int) {}
double QtLocateNothing(Place, int) {
    return 0;
}
void QtCount(Place, int) {}
void QtInsert(Place, int, int, int) {}

#endif
