#include "commands/cache/CmdCacheDisable.h"

#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/NotAvailable.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_DISABLE, CmdItem::ITEM_CACHE, TokenCmd::GROUP_CACHE),
    LUN_SELECTOR_ROWS,
    keywordRow(ModifierId::MODIFIER_CLUSTERID, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdCacheDisable::CmdCacheDisable()
{
    declareCommand(*this, rows);
    helpTitle = "Disable Cache";
    helpDescription = "Stops caching a LUN on the adapter named by -zek. With -clusterid the request goes to the primary "
        "adapter of that cluster instead.";
    helpSyntax = lunSelectorSyntax() + "\n"
        "\t[-clusterid=<cluster id>]\n" + adapterSyntax();
    helpModifiers = lunSelectorHelp() + "\n"
        "-clusterid=<cluster id>\n"
        "\tSend the request to the primary adapter of this cluster; the LUN\n"
        "\tmust then be named with -lun_wwuln.\n" + adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -lun_number=2 -fc_target=5006-0160-3BE0-1234"
        + ugCommandPrompt() + "-zek=0 -clusterid=SANCLUSTER1 -lun_wwuln=6006-0160-2B10-2D00-8E5A-3A4B-C1D2-E311";
    helpNotes = "-zek must name the adapter that caches the LUN.";
}

int CmdCacheDisable::execCommand(std::string& err)
{
    return commandNotAvailableYet(*this, err);
}
