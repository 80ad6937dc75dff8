#include "platform/data/firebird/ClientLibrary.h"

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
    ISC_STATUS_ARRAY status = {};
    fb_shutdown_callback(status, RefuseSignals, fb_shut_confirmation, nullptr);
    return Firebird::fb_get_master_interface();
}

}  // namespace

Firebird::IMaster& ClientLibrary() {
    static Firebird::IMaster* const master = MakeReady();
    return *master;
}

}  // namespace fichario
