#include "platform/rtl/IniDocument.h"

#include <map>
#include <QDir>
#include <QFileInfo>
#include <utility>
#include "platform/rtl/Exceptions.h"

namespace fichario {

namespace {

// One name for a file, however its folder is written.
UnicodeString Identity(const UnicodeString& path) {
    const QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return folder.isEmpty() ? file.filePath() : QDir(folder).filePath(file.fileName());
}

}  // namespace

std::shared_ptr<TIniDocument> TIniDocument::Open(const UnicodeString& path) {
    static std::map<UnicodeString, std::weak_ptr<TIniDocument>> documents;
    std::erase_if(documents, [](const auto& entry) { return entry.second.expired(); });
    auto& known = documents[Identity(path)];
    auto document = known.lock();
    if (!document) {
        document.reset(new TIniDocument(path));
        known = document;
    }
    return document;
}

const TIniText& TIniDocument::Text() {
    if (FWorking) return *FWorking;
    Refresh();
    return FText;
}

void TIniDocument::Change(TEdit edit) {
    if (FUpdates == 0) return Save({edit});
    if (!FWorking) FWorking = Text();
    edit(*FWorking);
    FPending.push_back(std::move(edit));
}

void TIniDocument::EndUpdate(bool save) {
    if (--FUpdates > 0) return;
    FWorking.reset();
    const auto edits = std::exchange(FPending, {});
    if (save && !edits.empty()) Save(edits);
}

void TIniDocument::Refresh() {
    const TFileStamp stamp = FileStamp(FPath);
    if (stamp == FStamp && !FUnreadable) return;
    FText = TIniText();
    FUnreadable = false;
    FStamp = stamp;
    if (stamp == TFileStamp()) return;
    try {
        FText = TIniText::FromBytes(ReadWholeFile(FPath));
    } catch (const EInOutError&) {
        FUnreadable = true;
    }
}

void TIniDocument::Save(const std::vector<TEdit>& edits) {
    Refresh();
    // Writing over settings that could not be read would lose them: this throws the cause.
    if (FUnreadable) FText = TIniText::FromBytes(ReadWholeFile(FPath));
    TIniText text = FText;
    bool changed = false;
    for (const TEdit& edit : edits) changed |= edit(text);
    if (!changed) return;
    WriteWholeFile(FPath, text.ToBytes());
    FText = std::move(text);
    FStamp = FileStamp(FPath);
    FUnreadable = false;
}

}  // namespace fichario
