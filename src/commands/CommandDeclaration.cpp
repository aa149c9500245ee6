#include "commands/CommandDeclaration.h"

void declareCommand(TokenCmd& command, TokenInitializer::TOKEN_INITIALIZER const* rows)
{
    command.init(TokenInitializer(rows[0]));
    command.initModifiers(rows + 1);
}
