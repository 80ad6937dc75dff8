// A statement and what goes into it, about to be executed.
//
//     BoundStatement bound(attachment, attachment.Prepare(sql), values);
//     bound.Cast();
//     if (!bound.Input->Misfit()) bound.Statement->Execute(*transaction, *bound.Input);
#pragma once
#include "platform/data/firebird/InputMessage.h"

namespace fichario {

struct BoundStatement {
    // As InputMessage. `values` must outlive this.
    BoundStatement(Attachment& attachment, StatementLease statement, const std::vector<InputValue>& values);

    // Takes the statement with casts where its places would change or not take a value; true when there were
    // any. A text that stands where the statement takes no cast stays a misfit, a number is left to the
    // server.
    bool Cast();

    StatementLease Statement;
    std::unique_ptr<InputMessage> Input;

  private:
    void Lay();

    Attachment& FAttachment;
    const std::vector<InputValue>& FValues;
};

}  // namespace fichario
