#include "commands/adapter/CmdNvdimmExecute.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/NvdimmActions.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_EXECUTE, CmdItem::ITEM_NVDIMM, TokenCmd::GROUP_NVDIMM),
    keywordRow(ModifierId::MODIFIER_DISARM, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_ERASE, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_UPDATE, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_UPDATE_ALL, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_SCAP_SELFTEST, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    keywordRow(ModifierId::MODIFIER_SCRUB, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE),
    endRow(),
};

} // namespace

CmdNvdimmExecute::CmdNvdimmExecute()
{
    declareCommand(*this, rows);
    helpTitle = "Execute NVDIMM";
    helpDescription =
        "Runs an NVDIMM operation on the adapter. When several flags are given, only the first in the order "
        "of the syntax is used.";
    helpSyntax = "\t[-disarm]\n"
                 "\t[-erase]\n"
                 "\t[-update]\n"
                 "\t[-update_all]\n"
                 "\t[-scap_selftest]\n"
                 "\t[-scrub]\n" +
        adapterSyntax();
    helpModifiers = "-disarm\n"
                    "\tDisarm the NVDIMM.\n"
                    "-erase\n"
                    "\tErase the NVDIMM.\n"
                    "-update\n"
                    "\tUpdate the NVDIMM firmware.\n"
                    "-update_all\n"
                    "\tUpdate all NVDIMM firmware images.\n"
                    "-scap_selftest\n"
                    "\tRun the supercapacitor self test.\n"
                    "-scrub\n"
                    "\tScrub the NVDIMM.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -scap_selftest";
    helpNotes = "One of the flags must be given. The adapter must support an NVDIMM.";
}

int CmdNvdimmExecute::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findNvdimmAdapter(*this, target, err))
        return rc;
    int command = 0;
    if (int const rc = nvdimmCommandFromFlags(*this, command, err))
        return rc;
    if (int const rc = target.adapter->executeNvdimmCommand(command))
        return rc;
    CommandReport report;
    report.banner = false;
    report.writeResult = false;
    report.text = nvdimmDoneText(command);
    return finishCommand(*this, target.adapter, report, err);
}
