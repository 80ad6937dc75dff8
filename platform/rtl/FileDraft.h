// A file that is written under another name, for writers that want a name and take their time.
//
//     TFileDraft draft(path);
//     Write(draft.Name());
//     draft.Commit();               // takes the place of `path` at once; without it nothing stays
//
// Whole contents that are at hand go by WriteWholeFile (Files.h) instead.
#pragma once
#include "platform/rtl/Types.h"

class TFileDraft {
  public:
    // Removes what a killed program has left of an earlier draft of `path`.
    explicit TFileDraft(const UnicodeString& path);
    ~TFileDraft();
    TFileDraft(const TFileDraft&) = delete;
    TFileDraft& operator=(const TFileDraft&) = delete;

    // The name to write to, in the folder of `path`.
    const UnicodeString& Name() const { return FName; }
    // Brings the written bytes to the disk and the file to its place. EInOutError; the old file is then
    // untouched.
    void Commit();

  private:
    UnicodeString FPath, FName;
};
