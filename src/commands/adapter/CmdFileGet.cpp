#include "commands/adapter/CmdFileGet.h"

#include "api/HbaMgmtInterfaces.h"
#include "commands/CommandDeclaration.h"
#include "commands/KeywordHelp.h"
#include "commands/adapter/FileCommand.h"

namespace {

constexpr TokenInitializer::TOKEN_INITIALIZER rows[] = {
    commandRow(CmdAction::ACTION_GET, CmdItem::ITEM_FILE, TokenCmd::GROUP_FILE),
    keywordRow(ModifierId::MODIFIER_FILEPATH, TokenModifier::REQUIRED, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_NAME, TokenModifier::OPTIONAL, TokenModifier::VALUE_REQUIRED, "~"),
    keywordRow(ModifierId::MODIFIER_CLEAR, TokenModifier::OPTIONAL, TokenModifier::VALUE_NONE, "~"),
    endRow(),
};

} // namespace

CmdFileGet::CmdFileGet()
{
    declareCommand(*this, rows);
    helpTitle = "Get File";
    helpDescription = "Copies a file from the adapter (from its /var/ftp area) to the host.";
    helpSyntax = "\t-file=<file name>\n"
                 "\t[-name=<name>]\n"
                 "\t[-clear]\n" +
        adapterSyntax();
    helpModifiers = "-file=<file name>\n"
                    "\tLocal file that receives the copy.\n"
                    "-name=<name>\n"
                    "\tName of the file on the adapter.\n"
                    "-clear\n"
                    "\tClear the file on the adapter after the copy.\n" +
        adapterHelp();
    helpExamples = ugCommandPrompt() + "-zek=0 -file=/tmp/config.txt -name=config.txt";
}

int CmdFileGet::execCommand(std::string& err)
{
    AddressedAdapter target;
    std::string file;
    AdapterFileKeywords adapterFile;
    if (int const rc = findAdapterFileCopy(*this, target, file, adapterFile, err))
        return rc;
    if (int const rc = target.adapter->getFile(file.c_str(), adapterFile.nameOrNull(), adapterFile.clear))
        return rc;
    CommandReport report;
    report.text = adapterFile.named
        ? "Fibre Channel Adapter file \"" + adapterFile.name + "\" saved successfully to file: \"" + file + "\""
        : "File \"" + file + "\" saved successfully";
    return finishCommand(*this, target.adapter, report, err);
}
