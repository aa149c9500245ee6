#include "commands/adapter/CmdAdapterList.h"

#include "commands/CommandDeclaration.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_LIST, CmdItem::ITEM_ADAPTER, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_ZEK, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdAdapterList::CmdAdapterList()
{
    declareCommand(*this, rows);
    helpTitle = "List Adapter";
    helpDescription = "Lists the adapters reachable from this host, or through a remote agent, grouped by cluster, one "
        "pasteable -zek= line per adapter.";
    helpSyntax = "\t[-zek=<adapter>]";
    helpModifiers = "-zek=<adapter>\n"
        "\tAlso list the adapters that this adapter sees in the SAN.";
    helpExamples = ugCommandPrompt()
        + ugCommandPrompt() + "-agent=192.168.1.20"
        + ugCommandPrompt() + "-zek=0";
}

int CmdAdapterList::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
