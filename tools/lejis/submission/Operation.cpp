#include "submission/Operation.h"

#include "commandline/CommandLine.h"
#include "submission/CheckOperation.h"
#include "submission/DeleteOperation.h"
#include "submission/SubmitOperation.h"

namespace lejis_client {

std::unique_ptr<Operation> MakeOperation(const CommandLine& commandLine) {
    switch (commandLine.command->action) {
        case Action::Submit:
            return std::make_unique<SubmitOperation>(commandLine);
        case Action::Delete:
            return std::make_unique<DeleteOperation>(commandLine);
        default:
            return std::make_unique<CheckOperation>();
    }
}

}  // namespace lejis_client
