#include "platform/data/firebird/BoundStatement.h"

#include "platform/data/firebird/Attachment.h"
#include "platform/data/firebird/ErrorCodes.h"

namespace fichario {

BoundStatement::BoundStatement(Attachment& attachment, StatementLease statement,
                               const std::vector<InputValue>& values)
    : Statement(std::move(statement)), FAttachment(attachment), FValues(values) {
    Lay();
}

void BoundStatement::Lay() {
    Input = std::make_unique<InputMessage>(FAttachment, Statement->Inputs(), FValues);
}

bool BoundStatement::Cast() {
    const bool foreign = Input->Misfit() && !Input->Misfit()->Character.isEmpty();
    if (Input->Casts().empty() || foreign) return false;
    try {
        Statement = FAttachment.Prepare(WithCasts(Statement->Sql(), Input->Casts()));
    } catch (const EFDError& error) {
        if (!error.Has(kSqlError)) throw;
        return false;
    }
    Lay();
    return true;
}

}  // namespace fichario
