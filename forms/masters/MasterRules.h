// Decisions of the view master and the registration master, free of any widget: what a mode is called,
// whether a registration form may be opened, and what its closing does to the screen that opened it.
//
//     if (auto refusal = RefuseOpening(state)) …            // why CreateCad opens nothing
//     TOwnerUpdate update = OwnerUpdateAfter(closing);       // what to re-read once the form is closed
#pragma once

#include <cstdint>
#include <optional>

#include "db/UDBUtils.h"
#include "platform/rtl/Types.h"

// Modes of a registration form.
inline constexpr unsigned char kIncluir = 1;     // a new record
inline constexpr unsigned char kAlterar = 2;     // change the current record
inline constexpr unsigned char kExcluir = 3;     // delete the current record
inline constexpr unsigned char kVisualizar = 4;  // only show the current record

// True for the modes in which the user types (include and change).
bool ModeEdits(unsigned char mode);

// What the registration form's caption ends with: " [Incluindo]", " [Alterando]", " [Excluindo]" or
// " [Visualizando]"; empty for any other mode.
UnicodeString ModeSuffix(unsigned char mode);

// What the view master knows when a registration form is asked for.
struct TOpening {
    unsigned char Mode = kIncluir;
    bool HasForm = true;     // the module has a registration form
    bool HasRecords = true;  // the grid's dataset is open and holds a record
    TKeyType KeyType = ktNone;
    bool HasKey = true;  // the grid knows its primary key
};

// Why no form is opened.
struct TRefusal {
    enum TKind {
        Erro,        // error box, then a silent abort
        Informacao,  // information box, then a silent abort
        Excecao      // an exception with the text
    };
    TKind Kind;
    UnicodeString Text;
};

// The first reason against opening, in the order the user is told; nothing when the form may open.
std::optional<TRefusal> RefuseOpening(const TOpening& opening);

// How a registration form was left.
struct TClosing {
    unsigned char Mode = kIncluir;
    bool Confirmed = false;      // closed by a confirmed action
    bool SharedDataSet = false;  // the opener shows the very dataset that was edited
    bool OwnerIsView = true;     // the opener is a view master
    TVizsualizationType VisType = vtFilter;
    int64_t LastID = 0;       // value of the posted record's first field, 0 when there is none
    bool SoftDelete = false;  // the dataset has TF_DEL
};

// What the closing brings up to date.
struct TOwnerUpdate {
    enum TStep {
        Nothing,
        ReopenOwn,        // close and open the form's dataset (the shared one when both show the same)
        ReopenOwnAtLast,  // … and go to its last record
        OwnerAtLast,      // the opener's dataset is refreshed and goes to its last record
        FilterOwner,      // the opener re-queries for the one record LastID
        ReopenOwner       // close and open the opener's dataset
    };
    TStep Step = Nothing;
    bool RefreshOwner = false;  // afterwards refresh the opener's dataset, when it is open
};

TOwnerUpdate OwnerUpdateAfter(const TClosing& closing);

// What the user reads when that failed for `cause`: what became of the record, which is safe, comes first.
UnicodeString ListBehindText(const TClosing& closing, const UnicodeString& cause);
