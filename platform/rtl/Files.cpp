#include "platform/rtl/Files.h"

#include <sys/stat.h>
#include <cerrno>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <utility>
#include "platform/rtl/Exceptions.h"

namespace {

TFileFailure& Failure() {
    static TFileFailure failure;
    return failure;
}

// What Qt refuses by itself, before the system could name a cause.
int RefusedByQt(const UnicodeString& path) {
    return QFileInfo(path).isDir() ? EISDIR : EACCES;
}

// Runs a step of Qt's that leaves the cause of a failure in errno; throws when it fails.
template <typename F>
void Require(const UnicodeString& path, TFileOperation operation, F&& step) {
    errno = 0;
    if (step()) return;
    const int cause = errno;
    RaiseFileError(path, operation, cause != 0 ? cause : RefusedByQt(path));
}

UnicodeString OperationText(TFileOperation operation) {
    switch (operation) {
        case foRead: return QStringLiteral("ler o arquivo");
        case foWrite: return QStringLiteral("gravar o arquivo");
        case foDelete: return QStringLiteral("excluir o arquivo");
        case foCreateFolder: break;
    }
    return QStringLiteral("criar a pasta");
}

}  // namespace

QByteArray ReadWholeFile(const UnicodeString& path) {
    CheckFileFailure(path, foRead);
    QFile file(path);
    Require(path, foRead, [&] { return file.open(QIODevice::ReadOnly); });
    QByteArray bytes;
    Require(path, foRead, [&] {
        bytes = file.readAll();
        return file.error() == QFileDevice::NoError;
    });
    return bytes;
}

void WriteWholeFile(const UnicodeString& path, QByteArrayView bytes) {
    CheckFileFailure(path, foWrite);
    QSaveFile file(path);
    Require(path, foWrite, [&] { return file.open(QIODevice::WriteOnly); });
    Require(path, foWrite, [&] { return file.write(bytes.data(), bytes.size()) == bytes.size(); });
    Require(path, foWrite, [&] { return file.commit(); });
}

TFileStamp FileStamp(const UnicodeString& path) {
    struct stat state;
    if (stat(QFile::encodeName(path).constData(), &state) != 0) return {};
    return {int64_t{state.st_mtim.tv_sec} * 1000000000 + state.st_mtim.tv_nsec, state.st_size, state.st_ino};
}

UnicodeString SystemErrorText(int errorCode) {
    switch (errorCode) {
        case EACCES:
        case EPERM: return QStringLiteral("acesso negado");
        case ENOENT: return QStringLiteral("arquivo ou pasta inexistente");
        case ENOTDIR: return QStringLiteral("o caminho passa por um arquivo que não é pasta");
        case EISDIR: return QStringLiteral("é uma pasta");
        case EEXIST: return QStringLiteral("já existe");
        case ENOSPC: return QStringLiteral("disco cheio");
        case EDQUOT: return QStringLiteral("cota de disco esgotada");
        case EROFS: return QStringLiteral("disco somente para leitura");
        case EBUSY:
        case ETXTBSY:
        case EAGAIN: return QStringLiteral("em uso por outro programa");
        case EMFILE:
        case ENFILE: return QStringLiteral("arquivos demais abertos");
        case ENAMETOOLONG: return QStringLiteral("nome longo demais");
        case EIO: return QStringLiteral("falha do disco");
        default: return QStringLiteral("erro %1 do sistema").arg(errorCode);
    }
}

void RaiseFileError(const UnicodeString& path, TFileOperation operation, int errorCode) {
    throw EInOutError(QStringLiteral("Não foi possível %1 '%2': %3.")
                          .arg(OperationText(operation), path, SystemErrorText(errorCode)),
                      errorCode);
}

TFileFailure SetFileFailure(TFileFailure failure) {
    return std::exchange(Failure(), std::move(failure));
}

void CheckFileFailure(const UnicodeString& path, TFileOperation operation) {
    if (!Failure()) return;
    if (const auto errorCode = Failure()(path, operation)) RaiseFileError(path, operation, *errorCode);
}
