// What all objects on one settings file share: the text last seen on disk, and the writes of an open bracket.
#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <vector>
#include "platform/rtl/Files.h"
#include "platform/rtl/IniText.h"

namespace fichario {

class TIniDocument {
  public:
    // Changes a text and answers whether it did.
    using TEdit = std::function<bool(TIniText&)>;

    // The document of that path, the same for all who hold it.
    static std::shared_ptr<TIniDocument> Open(const UnicodeString& path);

    const UnicodeString& Path() const { return FPath; }

    // The text with the writes of an open bracket, read again when the file changed. A file that is missing
    // or cannot be read is empty.
    const TIniText& Text();

    // Saves the edit, or keeps it for the end of the bracket. Throws EInOutError and changes nothing when the
    // file cannot be read or written.
    void Change(TEdit edit);

    void BeginUpdate() { ++FUpdates; }

    // The outermost end saves all edits of the bracket, or forgets them.
    void EndUpdate(bool save);

  private:
    explicit TIniDocument(const UnicodeString& path) : FPath(path) {}

    void Refresh();
    void Save(const std::vector<TEdit>& edits);

    UnicodeString FPath;
    TIniText FText;
    TFileStamp FStamp;
    bool FUnreadable = false;
    int FUpdates = 0;
    std::optional<TIniText> FWorking;  // FText with FPending applied, inside a bracket
    std::vector<TEdit> FPending;
};

}  // namespace fichario
