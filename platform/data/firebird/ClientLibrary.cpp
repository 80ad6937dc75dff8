#include "platform/data/firebird/ClientLibrary.h"

#include <clocale>
#include <csignal>
#include <QDir>
#include <QStandardPaths>
#include "platform/data/firebird/FbApi.h"

namespace fichario {

namespace {

constexpr char kLockVariable[] = "FIREBIRD_LOCK";

void ChooseLockFolder() {
    if (qEnvironmentVariableIsSet(kLockVariable)) return;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString folder = data + QStringLiteral("/firebird/lock");
    if (QDir().mkpath(folder)) qputenv(kLockVariable, QFile::encodeName(folder));
}

int RefuseSignals(const int reason, const int, void*) {
    return reason == fb_shutrsn_signal ? 1 : 0;
}

Firebird::IMaster* MakeReady() {
    ChooseLockFolder();
    std::setlocale(LC_NUMERIC, "C");
    ISC_STATUS_ARRAY status = {};
    fb_shutdown_callback(status, RefuseSignals, fb_shut_confirmation, nullptr);
    return Firebird::fb_get_master_interface();
}

}  // namespace

Firebird::IMaster& ClientLibrary() {
    static Firebird::IMaster* const master = MakeReady();
    return *master;
}

struct SignalKeeper::Dispositions {
    struct sigaction Term;
    struct sigaction Int;
};

SignalKeeper::SignalKeeper() : FBefore(std::make_unique<Dispositions>()) {
    sigaction(SIGTERM, nullptr, &FBefore->Term);
    sigaction(SIGINT, nullptr, &FBefore->Int);
}

SignalKeeper::~SignalKeeper() {
    sigaction(SIGTERM, &FBefore->Term, nullptr);
    sigaction(SIGINT, &FBefore->Int, nullptr);
}

}  // namespace fichario
