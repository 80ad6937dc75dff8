// The data-aware controls. Each is linked to one field of a data source's dataset:
//
//     auto* name = new TDBEdit(form);
//     name->SetDataSource(source);
//     name->SetDataField(u"NM_CLIENTE"_s);
//
// They show the current record's value. The first change by the user puts the dataset into edit state (unless
// the source's AutoEdit is off); the value goes to the field when the control is left, or earlier when the
// dataset wants it for a post. A value that the field refuses takes the focus back, with the text kept and
// selected.
#pragma once
#include "platform/ui/DBChoice.h"
#include "platform/ui/DBEdit.h"
#include "platform/ui/DBLookup.h"
