// Exceptions of the data layer.
//
//     try { query->Post(); }
//     catch (const EFDError& error) {
//         if (error.Has(335544665)) FocusKeyField();     // the new key exists already
//         if (!error.ConnectionUsable) OfferRetry();
//         throw;                                         // Message is a sentence for the user
//     }
#pragma once
#include <cstdint>
#include <QStringView>
#include <vector>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Types.h"

// A misuse of a dataset or field (English), or a record that cannot be written (Portuguese).
class EDatabaseError : public Exception {
  public:
    using Exception::Exception;
};

// What lists and paper show in the place of a stored text that cannot be read.
constexpr QStringView kUnreadable = u"(ilegível)";

// A stored text whose bytes form no characters, or that another user has just taken away. `Message` names the
// field.
class EUnreadableText : public EDatabaseError {
  public:
    // `label` empty: the field is not known. `reason` completes the sentence; empty: the bytes.
    explicit EUnreadableText(const UnicodeString& label = {}, const UnicodeString& reason = {});
    UnicodeString Reason;
};

// A failure that the database client or server reported, or that is found before they would (a text too long
// or with a foreign character) or for them (a record that others changed: code 335544878). `Message` is a
// Portuguese sentence that says what to do; what has no sentence of its own shows the server's text.
class EFDError : public EDatabaseError {
  public:
    EFDError(const UnicodeString& message, std::vector<int64_t> codes);

    // The first code of the list, one of the client library's isc_… numbers; 0 when there is none.
    int64_t Code() const;

    // Whether any code of the list is `code`. The telling one is often the second: a row locked by another
    // user reports 335544336 first and 335544451 after it.
    bool Has(int64_t code) const;

    const std::vector<int64_t>& Codes() const { return FCodes; }

    // The same error with another sentence for the user.
    EFDError Saying(const UnicodeString& message) const;

    UnicodeString ServerText;  // the server's own text, several lines
    // The violated constraint's, index's or column's name; empty when none was named.
    UnicodeString Constraint;
    UnicodeString Table;           // of the constraint; empty when not named
    TStringArray Columns;          // those of the violated key, or the one whose value is refused
    UnicodeString SqlState;        // five characters, such as 23000
    bool ConnectionUsable = true;  // false: the connection is lost and must be opened anew
    bool BrokenOff = false;        // the call was given up here: its time was over, or the user cancelled

  private:
    std::vector<int64_t> FCodes;
};
