#include "commands/adapter/CmdNvdimmShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/NvdimmActions.h"
#include "records/KNvdimmInfo.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_NVDIMM, TokenCmd::GROUP_NVDIMM),
    endRow(),
};

} // namespace

CmdNvdimmShow::CmdNvdimmShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show NVDIMM";
    helpDescription = "Shows the state of the NVDIMM of the adapter.";
    helpSyntax = adapterSyntax();
    helpModifiers = adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
    helpResultFile = recordResultHelp("KNvdimmInfo", 328);
    helpNotes = "The adapter must support an NVDIMM.";
}

int CmdNvdimmShow::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findNvdimmAdapter(*this, target, err))
        return rc;
    return showAdapterRecord(*this, *target.adapter, &HIsaAdapter::getNvdimmInfo, err);
}
