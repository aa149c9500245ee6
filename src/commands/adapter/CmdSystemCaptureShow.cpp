#include "commands/adapter/CmdSystemCaptureShow.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/CommandPattern.h"
#include "commands/KeywordHelp.h"
#include "core/ZekcliReturn.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_SHOW, CmdItem::ITEM_SYSTEM_CAPTURE, TokenCmd::GROUP_ORDINARY),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED),
    endRow(),
};

} // namespace

CmdSystemCaptureShow::CmdSystemCaptureShow()
{
    declareCommand(*this, rows);
    helpTitle = "Show System_Capture";
    helpDescription = "Shows the system capture of the adapter: a readable dump of its state for support.";
    helpSyntax = "\t[-file=<file name>]\n" + adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tNot used: the capture is shown on the console. Use -textfile to\n"
                    "\tkeep it in a file.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0";
}

// No banner: the capture is a support dump that is read as one text.
int CmdSystemCaptureShow::execCommand(std::string& err)
{
    AddressedAdapter target;
    if (int const rc = findAddressedAdapter(*this, target, err))
        return rc;
    std::string capture;
    if (int const rc = target.adapter->getSystemCapture(capture))
        return rc;
    return outDisplay(capture, err) ? 0 : ZEKCLI_OUTPUT_FAIL;
}
